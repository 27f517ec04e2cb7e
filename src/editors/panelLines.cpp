#include "editors/panelLines.h"

#include "platform/OpenVesk/KGlobal.h"
#include "platform/OpenVeskUI/KQtUtil.h"
#include "platform/orvUI_1_0/DPIPreset.h"

using orvUI_v1::DPIPreset;

void runPanelLine(const KString& format, const KString& arg1, const KString& arg2,
                  const KString& arg3) {
  const KString& none = KString::argUnused;
  KString line;
  line.format(format, arg1, arg2, arg3, none, none, none, none, none, none, none);
  KGlobal::executeCommand(line, false, false);
}

/// The scales between have no preset of their own.
void passInterfaceScale() {
  const int percent = KQtUtil::dpiScale(100);
  orvUI_v1::setCustomDPIScaling(percent == 150   ? DPIPreset::kScale150
                                : percent == 200 ? DPIPreset::kScale200
                                                 : DPIPreset::kScale100);
}
