#include "editors/orvParameterEditorCmd.h"

#include <new>

#include "editors/editorNames.h"
#include "editors/panelLines.h"
#include "editors/parameterPanels.h"
#include "platform/OpenVesk/KArgParser.h"
#include "platform/OpenVeskUI/KQtUtil.h"
#include "plugin/FlagRow.h"
#include "plugin/pluginName.h"

using orvUI_v1::ParameterEditor;
using orvUI_v1::ParameterEditorMode;

namespace {

constexpr FlagRow kFlags[] = {{"-rl", "-reload"}, {"-in", "-info"}};

void makePanel(int panel) {
  KString format(
      "workspaceControl -label \"^1s\" -retain false -deleteLater false -loadImmediately true "
      "-floating true -initialWidth 300 -initialHeight 600 -requiredPlugin \"^2s\" ^3s");
  runPanelLine(format, parameterPanelLabels[panel], pluginName, parameterPanelNames[panel]);
}

/// Docks a new editor into the panel that is current.
void fillPanel(int panel, bool info) {
  passInterfaceScale();
  parameterPanels[panel] = KQtUtil::getCurrentParent();
  QPointer<ParameterEditor>& editor = parameterEditors[panel];
  editor = ParameterEditor::create(nullptr);
  if (info && editor) editor->setMode(ParameterEditorMode::kInfo);
  KQtUtil::addWidgetToVeskLayout(editor, parameterPanels[panel], "");
  if (editor) editor->show();
}

/// Tells the host by which line it fills the panel when it makes it again.
void leaveScript(int panel, bool info) {
  KString script = kParameterEditorCommand;
  if (info) script += " -info";
  script += " -reload ";
  runPanelLine("workspaceControl -e -uiScript \"^1s\" ^2s", script, parameterPanelNames[panel]);
}

}  // namespace

KPxCommand* orvParameterEditorCmd::creator() { return new (std::nothrow) orvParameterEditorCmd; }

KSyntax orvParameterEditorCmd::createSyntax() {
  KSyntax syntax;
  addFlags(syntax, kFlags);
  return syntax;
}

bool orvParameterEditorCmd::hasSyntax() const { return true; }

/// A panel that is there is brought back. Reloading fills a panel that the host has made itself.
KStatus orvParameterEditorCmd::doIt(const KArgList& args) {
  const KArgParser line(syntax(), args);
  const bool info = line.isFlagSet("-in");
  const bool reloads = line.isFlagSet("-rl");
  const int panel = info ? 1 : 0;
  if (parameterPanels[panel]) {
    runPanelLine("workspaceControl -e -restore ^1s", parameterPanelNames[panel]);
    return StatusSuccess;
  }
  if (!reloads) makePanel(panel);
  fillPanel(panel, info);
  if (!reloads) leaveScript(panel, info);
  return StatusSuccess;
}
