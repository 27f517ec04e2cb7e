#include "platform/orvUI_1_0/DPIPreset.h"

#include "standalone/widgets/look/Scale.h"

namespace {

orvUI_v1::DPIPreset thePreset = orvUI_v1::DPIPreset::kScale100;

}  // namespace

void orvUI_v1::setCustomDPIScaling(DPIPreset preset) { thePreset = preset; }

qreal orvuilib::currentScale() {
  switch (thePreset) {
    case orvUI_v1::DPIPreset::kScale150:
      return 1.5;
    case orvUI_v1::DPIPreset::kScale200:
      return 2;
    default:
      return 1;
  }
}
