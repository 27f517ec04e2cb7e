#include "standalone/host/commands/BuiltinCommand.h"

namespace vesk {
namespace {

constexpr ArgType kText[] = {KSyntax::ArgString};

class LoadPluginCommand : public BuiltinCommand {
 public:
  static constexpr CommandRecord kRecord{
      "loadPlugin", "Loads the module of a file, and gives the plug-in's name.", {}, kText};

 private:
  KStatus run(const KArgDatabase& arguments) override {
    KString path;
    if (!arguments.getCommandArgument(0, path)) return fail("the path of the module is missing");
    std::string name;
    const KStatus status = session().plugins().load(std::string(HostAccess::text(path)), &name);
    if (status) setValue(name);
    return status;
  }
};

class UnloadPluginCommand : public BuiltinCommand {
 public:
  static constexpr CommandRecord kRecord{
      "unloadPlugin", "Unloads a plug-in; its edits leave the undo queue.", {}, kText};

 private:
  KStatus run(const KArgDatabase& arguments) override {
    KString name;
    if (!arguments.getCommandArgument(0, name)) return fail("the name of the plug-in is missing");
    return session().plugins().unload(HostAccess::text(name));
  }
};

constexpr FlagRow kPluginInfoFlags[] = {{"-ls", "-listPlugins"}, {"-l", "-loaded"},
                                        {"-vd", "-vendor"},      {"-v", "-version"},
                                        {"-p", "-path"},         {"-c", "-command"}};

class PluginInfoCommand : public BuiltinCommand {
 public:
  static constexpr CommandRecord kRecord{"pluginInfo",
                                         "Lists the loaded plug-ins, or tells of one of them.",
                                         kPluginInfoFlags, kText, true};

 private:
  KStatus run(const KArgDatabase& arguments) override {
    KString name;
    const bool named = static_cast<bool>(arguments.getCommandArgument(0, name));
    const std::size_t questions = flagsGiven(arguments, kPluginInfoFlags);
    if (questions > 1) return fail("its flags exclude each other");
    if (arguments.isFlagSet("-ls") || (!named && questions == 0)) return list();
    if (!named) return fail("the name of the plug-in is missing");
    const auto plugin = session().plugins().find(HostAccess::text(name));
    if (arguments.isFlagSet("-l")) {
      setValue(plugin && plugin->initialized);
      return StatusSuccess;
    }
    if (!plugin) return fail("no plug-in " + quoted(HostAccess::text(name)) + " is loaded");
    return tell(*plugin, arguments);
  }

  static KStatus list() {
    std::vector<std::string> names;
    for (const auto& plugin : session().plugins().plugins()) names.push_back(plugin->name());
    setValue(std::move(names));
    return StatusSuccess;
  }

  static KStatus tell(const Plugin& plugin, const KArgDatabase& arguments) {
    if (arguments.isFlagSet("-vd")) {
      setValue(plugin.vendor);
    } else if (arguments.isFlagSet("-p")) {
      setValue(plugin.path());
    } else if (arguments.isFlagSet("-c")) {
      setValue(session().registry().namesOf(&plugin));
    } else {
      setValue(plugin.version);
    }
    return StatusSuccess;
  }
};

}  // namespace

void registerPluginCommands(CommandRegistry& registry) {
  registerBuiltin<LoadPluginCommand>(registry);
  registerBuiltin<UnloadPluginCommand>(registry);
  registerBuiltin<PluginInfoCommand>(registry);
}

}  // namespace vesk
