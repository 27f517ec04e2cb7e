#include "standalone/host/commands/BuiltinCommand.h"
#include "standalone/workspace/MainWindow.h"
#include "standalone/workspace/Snapshot.h"
#include "standalone/workspace/workspaceCommands.h"

namespace vesk {
namespace {

constexpr FlagRow kFlags[] = {{"-p", "-panel", {KSyntax::ArgString}},
                              {"-f", "-file", {KSyntax::ArgString}},
                              {"-w", "-width", {KSyntax::ArgInteger}},
                              {"-h", "-height", {KSyntax::ArgInteger}}};

class SnapshotCommand : public BuiltinCommand {
 public:
  static constexpr CommandRecord kRecord{
      "snapshot", "Writes a picture of a panel's content, or of the whole window, as PNG.", kFlags};

 private:
  KStatus run(const KArgDatabase& arguments) override {
    const std::string path = flagText(arguments, "-f");
    if (path.empty()) return fail("the path of the picture is missing; name a -file");
    for (const char* side : {"-w", "-h"}) {
      const int pixels = flagInt(arguments, side);
      if (arguments.isFlagSet(side) && (pixels < 1 || pixels > kLargestPicture)) {
        return fail("-width and -height are from 1 to " + std::to_string(kLargestPicture));
      }
    }
    MainWindow* window = MainWindow::current();
    if (!window) return fail("there is no window; start vesk with --gui");
    QWidget* widget = window;
    if (arguments.isFlagSet("-p")) {
      Panel* panel = window->panels().find(flagText(arguments, "-p"));
      if (!panel) return fail("no panel is named " + vesk::quoted(flagText(arguments, "-p")));
      window->panels().load(*panel);
      widget = panel->content();
    }
    const std::string problem =
        writeSnapshot(*widget, {flagInt(arguments, "-w"), flagInt(arguments, "-h")}, path);
    return problem.empty() ? KStatus()
                           : fail("cannot write " + vesk::quoted(path) + ": " + problem);
  }
};

}  // namespace

void registerSnapshotCommand(CommandRegistry& registry) {
  registerBuiltin<SnapshotCommand>(registry);
}

}  // namespace vesk
