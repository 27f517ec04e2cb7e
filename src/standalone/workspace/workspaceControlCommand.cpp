#include <algorithm>
#include <array>

#include "standalone/host/commands/BuiltinCommand.h"
#include "standalone/workspace/MainWindow.h"
#include "standalone/workspace/Workspace.h"
#include "standalone/workspace/workspaceCommands.h"

namespace vesk {
namespace {

constexpr ArgType kName[] = {KSyntax::ArgString};
constexpr int kLargestSize = 16384;

/// In which modes a flag has a meaning.
enum Modes : unsigned char { kCreate = 1, kEdit = 2, kQuery = 4 };

struct ModeRow {
  FlagRow flag;
  unsigned char modes;
};

constexpr ModeRow kRows[] = {
    {{"-l", "-label", {KSyntax::ArgString}}, kCreate | kEdit | kQuery},
    {{"-rt", "-retain", {KSyntax::ArgBoolean}}, kCreate | kQuery},
    {{"-dl", "-deleteLater", {KSyntax::ArgBoolean}}, kCreate | kQuery},
    {{"-li", "-loadImmediately", {KSyntax::ArgBoolean}}, kCreate | kQuery},
    {{"-fl", "-floating", {KSyntax::ArgBoolean}}, kCreate | kEdit | kQuery},
    {{"-iw", "-initialWidth", {KSyntax::ArgInteger}}, kCreate | kQuery},
    {{"-ih", "-initialHeight", {KSyntax::ArgInteger}}, kCreate | kQuery},
    {{"-rp", "-requiredPlugin", {KSyntax::ArgString}}, kCreate | kQuery},
    {{"-ui", "-uiScript", {KSyntax::ArgString}}, kCreate | kEdit | kQuery},
    {{"-v", "-visible", {KSyntax::ArgBoolean}}, kCreate | kEdit | kQuery},
    {{"-rs", "-restore"}, kEdit},
    {{"-cl", "-close"}, kEdit},
    {{"-ex", "-exists"}, kQuery},
    {{"-ls", "-listPanels"}, kCreate | kQuery},
};

constexpr auto kFlags = [] {
  std::array<FlagRow, std::size(kRows)> flags{};
  for (std::size_t i = 0; i < flags.size(); ++i) flags[i] = kRows[i].flag;
  return flags;
}();

class WorkspaceControlCommand : public BuiltinCommand {
 public:
  static constexpr CommandRecord kRecord{
      "workspaceControl",
      "Makes, changes, shows, closes and asks the panels of the window.",
      kFlags,
      kName,
      true,
      true};

 private:
  KStatus run(const KArgDatabase& arguments) override {
    const unsigned char mode = modeOf(arguments);
    if (mode == kCreate) leaveNoParent();
    for (const ModeRow& row : kRows) {
      if (arguments.isFlagSet(row.flag.shortName) && (row.modes & mode) == 0) {
        return fail(std::string(row.flag.longName) + " " + whereItBelongs(row.modes));
      }
    }
    if (!MainWindow::current()) return fail("there is no window; start vesk with --gui");
    if (arguments.isFlagSet("-ls")) return list(arguments);
    const std::vector<std::string> names = positionalTexts(arguments);
    if (names.empty()) return fail("the name of the panel is missing");
    if (names[0].empty()) return fail("the name of the panel is empty");
    if (mode == kCreate) return create(arguments, names[0]);
    if (arguments.isFlagSet("-ex")) return tellWhetherItExists(arguments, names[0]);
    const bool restores = arguments.isFlagSet("-rs");
    Panel* panel = restores ? panels().findOrRecall(names[0]) : panels().find(names[0]);
    if (!panel) return fail("no panel is named " + vesk::quoted(names[0]));
    return mode == kQuery ? query(arguments, *panel) : edit(arguments, *panel);
  }

  void misfit(const KArgDatabase& arguments) override {
    if (modeOf(arguments) == kCreate) leaveNoParent();
  }

  /// When no panel comes of a line, nothing is built into another one.
  static void leaveNoParent() {
    if (Workspace* workspace = Workspace::current()) workspace->setCurrentParent(nullptr);
  }

  /// A list is asked for also without query mode.
  static unsigned char modeOf(const KArgDatabase& arguments) {
    if (arguments.isEdit()) return kEdit;
    return arguments.isQuery() || arguments.isFlagSet("-ls") ? kQuery : kCreate;
  }

  static PanelSet& panels() { return MainWindow::current()->panels(); }

  static std::string whereItBelongs(unsigned char modes) {
    if ((modes & ~kEdit) == 0) return "needs edit mode (-e)";
    if ((modes & ~kQuery) == 0) return "needs query mode (-q)";
    return "can be given when a panel is made, and asked";
  }

  static KStatus list(const KArgDatabase& arguments) {
    if (flagsGiven(arguments, kFlags) > 1 || !positionalTexts(arguments).empty()) {
      return fail("-listPanels goes alone");
    }
    std::vector<std::string> names;
    for (const Panel* panel : panels().panels()) names.push_back(panel->name());
    setValue(std::move(names));
    return StatusSuccess;
  }

  static KStatus create(const KArgDatabase& arguments, const std::string& name) {
    if (panels().find(name)) return fail("a panel is named " + vesk::quoted(name) + " already");
    PanelSettings settings;
    settings.name = name;
    settings.label = arguments.isFlagSet("-l") ? flagText(arguments, "-l") : name;
    settings.uiScript = flagText(arguments, "-ui");
    settings.requiredPlugin = flagText(arguments, "-rp");
    readFlag(arguments, "-rt", settings.retain);
    readFlag(arguments, "-dl", settings.deleteLater);
    readFlag(arguments, "-li", settings.loadImmediately);
    readFlag(arguments, "-fl", settings.floating);
    readFlag(arguments, "-v", settings.visible);
    const bool fits = readSize(arguments, "-iw", settings.initialWidth) &&
                      readSize(arguments, "-ih", settings.initialHeight);
    if (!fits) {
      return fail("-initialWidth and -initialHeight are from 1 to " + std::to_string(kLargestSize));
    }
    panels().create(std::move(settings));
    setValue(name);
    return StatusSuccess;
  }

  static void readFlag(const KArgDatabase& arguments, const char* flag, bool& value) {
    if (arguments.isFlagSet(flag)) value = flagBool(arguments, flag);
  }

  static bool readSize(const KArgDatabase& arguments, const char* flag, int& value) {
    if (arguments.isFlagSet(flag)) value = flagInt(arguments, flag);
    return value >= 1 && value <= kLargestSize;
  }

  static KStatus edit(const KArgDatabase& arguments, Panel& panel) {
    const bool closes = arguments.isFlagSet("-cl");
    if (flagsGiven(arguments, kFlags) == 0) return fail("say what to change, with its flags");
    if (closes && flagsGiven(arguments, kFlags) > 1) return fail("-close goes alone");
    if (panel.isOwn() && arguments.isFlagSet("-ui")) {
      return fail("no lines make the content of " + vesk::quoted(panel.name()));
    }
    if (arguments.isFlagSet("-l")) panel.setLabel(flagText(arguments, "-l"));
    if (arguments.isFlagSet("-fl")) panels().setFloating(panel, flagBool(arguments, "-fl"));
    if (arguments.isFlagSet("-v")) panels().setVisible(panel, flagBool(arguments, "-v"));
    if (arguments.isFlagSet("-ui")) panels().setUiScript(panel, flagText(arguments, "-ui"));
    if (arguments.isFlagSet("-rs")) panels().restore(panel);
    if (closes) panels().close(panel);
    return StatusSuccess;
  }

  static KStatus tellWhetherItExists(const KArgDatabase& arguments, const std::string& name) {
    if (flagsGiven(arguments, kFlags) > 1) return fail("ask one thing at a time");
    setValue(panels().find(name) != nullptr);
    return StatusSuccess;
  }

  static KStatus query(const KArgDatabase& arguments, const Panel& panel) {
    if (flagsGiven(arguments, kFlags) != 1) return fail("ask one thing at a time, with its flag");
    const PanelSettings& settings = panel.settings();
    const std::pair<const char*, ResultValue> answers[] = {
        {"-v", panel.isShown()},        {"-l", settings.label},
        {"-rt", settings.retain},       {"-dl", settings.deleteLater},
        {"-fl", panel.isFloating()},    {"-li", settings.loadImmediately},
        {"-iw", settings.initialWidth}, {"-ih", settings.initialHeight},
        {"-ui", settings.uiScript},     {"-rp", settings.requiredPlugin},
    };
    for (const auto& [flag, answer] : answers) {
      if (arguments.isFlagSet(flag)) setValue(answer);
    }
    return StatusSuccess;
  }
};

}  // namespace

void registerWorkspaceControlCommand(CommandRegistry& registry) {
  registerBuiltin<WorkspaceControlCommand>(registry);
}

void registerWorkspaceCommands(CommandRegistry& registry) {
  registerWorkspaceControlCommand(registry);
  registerWorkspaceCommand(registry);
  registerSnapshotCommand(registry);
}

}  // namespace vesk
