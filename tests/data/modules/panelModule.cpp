// A module that makes panels and closes none at its end. `panelProbe NAME` opens one with a widget
// of a class of the module's own; `panelProbe NAME reload` only fills the current panel;
// `panelProbe` makes such a widget outside all panels.

#include <QPushButton>
#include <string>

#include "platform/OpenVeskUI/KQtUtil.h"
#include "tests/data/modules/ModuleCommand.h"

MODULE_ENTRY const char KApiVersion[16];
const char KApiVersion[16] = "20250000";

namespace {

class ModuleWidget final : public QPushButton {
 public:
  ModuleWidget() { setObjectName("moduleWidget"); }
  QSize sizeHint() const override { return {40, 20}; }
};

void runText(const std::string& line) {
  KString text;
  text.setUTF8(line.c_str());
  KGlobal::executeCommand(text, false, false);
}

class PanelProbe : public KPxCommand {
 public:
  KStatus doIt(const KArgList& arguments) override {
    if (arguments.length() == 0) {
      (new ModuleWidget)->show();
      return StatusSuccess;
    }
    const std::string name = '"' + std::string(arguments.asString(0).asUTF8()) + '"';
    const bool reload = arguments.length() > 1;
    if (!reload) runText("workspaceControl -label Probe -retain off -deleteLater off " + name);
    KQtUtil::addWidgetToVeskLayout(new ModuleWidget, KQtUtil::getCurrentParent(), KString());
    const std::string script =
        "\"panelProbe \\" + name.substr(0, name.size() - 1) + "\\\" reload\"";
    if (!reload) runText("workspaceControl -e -uiScript " + script + " " + name);
    return StatusSuccess;
  }

  static KPxCommand* create() { return new PanelProbe; }
  static KSyntax makeSyntax() { return {}; }
};

}  // namespace

MODULE_ENTRY KStatus initializePlugin(KObject object) {
  return KFnPlugin(object, "A vendor", "1", "Any")
      .registerCommand("panelProbe", PanelProbe::create, PanelProbe::makeSyntax);
}

MODULE_ENTRY KStatus uninitializePlugin(KObject object) {
  return KFnPlugin(object, "A vendor", "1", "Any").deregisterCommand("panelProbe");
}
