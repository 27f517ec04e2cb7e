#include "standalone/host/commands/BuiltinCommand.h"
#include "standalone/host/engine/ScriptReader.h"

namespace vesk {
namespace {

constexpr ArgType kText[] = {KSyntax::ArgString};

class SourceCommand : public BuiltinCommand {
 public:
  static constexpr CommandRecord kRecord{
      "source", "Runs the lines of a script, up to the first that fails.", {}, kText};

 private:
  KStatus run(const KArgDatabase& arguments) override {
    KString path;
    if (!arguments.getCommandArgument(0, path)) return fail("the path of the script is missing");
    std::string reason;
    const auto script = readScript(path.asUTF8(), reason);
    if (!script) return fail("cannot read " + quoted(HostAccess::text(path)) + ": " + reason);

    KStatus status;
    ResultValue result;
    const std::size_t failed = forEachLine(*script, [&](std::string_view line, std::size_t) {
      if (isCommentLine(line)) return true;
      status = session().engine().run(line, result, {.topLevel = true});
      return static_cast<bool>(status) && !session().quitRequested;
    });
    if (!status) {
      fail(std::string(HostAccess::text(path)) + ":" + std::to_string(failed) +
           ": the line failed");
    }
    setValue(std::move(result));
    return status;
  }
};

constexpr FlagRow kQuitFlags[] = {{"-ec", "-exitCode", {KSyntax::ArgInteger}}};

class QuitCommand : public BuiltinCommand {
 public:
  static constexpr CommandRecord kRecord{"quit", "Ends the program.", kQuitFlags};

 private:
  KStatus run(const KArgDatabase& arguments) override {
    session().quitRequested = true;
    session().exitStatus = flagInt(arguments, "-ec");
    return StatusSuccess;
  }
};

}  // namespace

void registerSessionCommands(CommandRegistry& registry) {
  registerBuiltin<SourceCommand>(registry);
  registerBuiltin<QuitCommand>(registry);
}

}  // namespace vesk
