#include <filesystem>

#include "standalone/host/commands/BuiltinCommand.h"
#include "standalone/workspace/MainWindow.h"
#include "standalone/workspace/workspaceCommands.h"

namespace vesk {
namespace {

constexpr FlagRow kFlags[] = {
    {"-s", "-save"}, {"-rs", "-restore"}, {"-r", "-reset"}, {"-f", "-file", {KSyntax::ArgString}}};

class WorkspaceCommand : public BuiltinCommand {
 public:
  static constexpr CommandRecord kRecord{
      "workspace", "Saves and restores which panels there are and where.", kFlags};

 private:
  KStatus run(const KArgDatabase& arguments) override {
    const bool hasFile = arguments.isFlagSet("-f");
    if (flagsGiven(arguments, kFlags) - (hasFile ? 1 : 0) != 1) {
      return fail("one of -save, -restore and -reset is needed");
    }
    MainWindow* window = MainWindow::current();
    if (!window) return fail("there is no window; start vesk with --gui");
    if (arguments.isFlagSet("-r"))
      return hasFile ? fail("-file goes with -save and -restore") : reset(*window);
    const std::string path = hasFile ? flagText(arguments, "-f") : window->workspacePath();
    if (path.empty()) {
      return fail(hasFile ? "the path is empty" : "this session keeps no settings; name a -file");
    }
    return arguments.isFlagSet("-s") ? save(*window, path) : restore(*window, path);
  }

  static KStatus reset(MainWindow& window) {
    window.resetWorkspace();
    return StatusSuccess;
  }

  static KStatus save(MainWindow& window, const std::string& path) {
    const std::string problem = window.saveWorkspace(path);
    return problem.empty() ? KStatus()
                           : fail("cannot write " + vesk::quoted(path) + ": " + problem);
  }

  static KStatus restore(MainWindow& window, const std::string& path) {
    std::error_code error;
    if (!std::filesystem::exists(path, error))
      return fail("there is no file " + vesk::quoted(path));
    return window.restoreWorkspace(path) ? StatusSuccess : StatusFailure;
  }
};

}  // namespace

void registerWorkspaceCommand(CommandRegistry& registry) {
  registerBuiltin<WorkspaceCommand>(registry);
}

}  // namespace vesk
