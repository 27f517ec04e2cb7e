#include "standalone/host/commands/BuiltinCommand.h"
#include "standalone/host/engine/HostVersion.h"

namespace vesk {
namespace {

constexpr FlagRow kAboutFlags[] = {{"-b", "-batch"}, {"-v", "-version"}};

class AboutCommand : public BuiltinCommand {
 public:
  static constexpr CommandRecord kRecord{
      "about",
      "Tells of the program: whether it runs in batch, its version.",
      kAboutFlags,
      {},
      true};

 private:
  KStatus run(const KArgDatabase& arguments) override {
    if (arguments.isFlagSet("-b")) {
      setValue(session().options().batch);
    } else if (arguments.isFlagSet("-v")) {
      setValue(std::string(kHostVersion));
    } else {
      return fail("say what to tell: -batch or -version");
    }
    return StatusSuccess;
  }
};

constexpr FlagRow kMouseFlags[] = {{"-mbs", "-mouseButtonTrackingStatus"},
                                   {"-mbt", "-mouseButtonTracking", {KSyntax::ArgInteger}}};

class MouseCommand : public BuiltinCommand {
 public:
  static constexpr CommandRecord kRecord{
      "mouse", "Asks or sets how many mouse buttons the host tracks.", kMouseFlags};

 private:
  KStatus run(const KArgDatabase& arguments) override {
    const bool set = arguments.isFlagSet("-mbt");
    if (set) session().mouseButtons = flagInt(arguments, "-mbt");
    if (arguments.isFlagSet("-mbs")) {
      setValue(session().mouseButtons);
    } else if (!set) {
      return fail("say what to do: -mouseButtonTrackingStatus or -mouseButtonTracking");
    }
    return StatusSuccess;
  }
};

constexpr ArgType kTexts[] = {KSyntax::ArgString};

class EchoCommand : public BuiltinCommand {
 public:
  static constexpr CommandRecord kRecord{
      "echo", "Prints its arguments, a blank between them.", {}, kTexts, false, false, true};

 private:
  KStatus run(const KArgDatabase& arguments) override {
    std::string line;
    for (const std::string& text : positionalTexts(arguments)) line += text + " ";
    if (!line.empty()) line.pop_back();
    session().messages().print(line);
    return StatusSuccess;
  }
};

std::string describe(const FlagSpec& flag) {
  std::string line = "  " + flag.shortLineName() + " " + flag.lineName();
  for (const ArgType type : flag.arguments) line += " <" + std::string(argTypeName(type)) + ">";
  if (flag.multiUse) line += "  (may be repeated)";
  return line;
}

class HelpCommand : public BuiltinCommand {
 public:
  static constexpr CommandRecord kRecord{
      "help", "Lists the commands, or the flags of one command.", {}, kTexts};

 private:
  KStatus run(const KArgDatabase& arguments) override {
    KString name;
    if (!arguments.getCommandArgument(0, name)) {
      setValue(session().registry().names());
      return StatusSuccess;
    }
    const auto entry = session().registry().find(HostAccess::text(name));
    if (!entry) return fail("unknown command " + quoted(HostAccess::text(name)));
    print(*entry);
    return StatusSuccess;
  }

  static void print(const CommandEntry& entry) {
    const SyntaxData& syntax = HostAccess::data(entry.syntax);
    std::string usage = entry.name;
    for (const ArgType type : syntax.arguments()) {
      usage += " <" + std::string(argTypeName(type)) + ">";
    }
    if (syntax.repeatsLastArgument()) usage += " ...";
    MessageChannel& messages = session().messages();
    messages.print(usage);
    if (!entry.summary.empty()) messages.print(entry.summary);
    if (syntax.hasQuery()) messages.print("  -q -query");
    if (syntax.hasEdit()) messages.print("  -e -edit");
    for (const FlagSpec& flag : syntax.flags()) messages.print(describe(flag));
  }
};

}  // namespace

void registerInformationCommands(CommandRegistry& registry) {
  registerBuiltin<AboutCommand>(registry);
  registerBuiltin<MouseCommand>(registry);
  registerBuiltin<EchoCommand>(registry);
  registerBuiltin<HelpCommand>(registry);
}

}  // namespace vesk
