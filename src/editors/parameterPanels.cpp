#include "editors/parameterPanels.h"

#include "editors/panelLines.h"

const KString parameterPanelNames[] = {"orvParameterEditorControl", "orvInfoPanelControl"};
const KString parameterPanelLabels[] = {"Parameters", "Info"};
QPointer<QWidget> parameterPanels[kParameterPanels];
QPointer<orvUI_v1::ParameterEditor> parameterEditors[kParameterPanels];

void closeParameterEditors() {
  for (int i = 0; i < kParameterPanels; ++i) {
    if (parameterEditors[i]) runPanelLine("workspaceControl -e -close ^1s", parameterPanelNames[i]);
  }
}
