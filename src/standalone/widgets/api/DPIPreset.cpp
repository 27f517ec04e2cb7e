#include "platform/orvUI_1_0/DPIPreset.h"

#include <QFontInfo>
#include <QGuiApplication>
#include <algorithm>

#include "standalone/widgets/look/Scale.h"

namespace {

orvUI_v1::DPIPreset thePreset = orvUI_v1::DPIPreset::kScale100;

/// The height of the program's text at a scale of 1, in pixels.
constexpr qreal kUsualText = 13;

/// In quarters, since fonts come in whole pixels.
qreal scaleOfText() {
  const qreal height = QFontInfo(QGuiApplication::font()).pixelSize();
  return std::clamp(qRound(height / kUsualText * 4) / 4.0, 1.0, 4.0);
}

}  // namespace

void orvUI_v1::setCustomDPIScaling(DPIPreset preset) { thePreset = preset; }

qreal orvuilib::currentScale() {
  switch (thePreset) {
    case orvUI_v1::DPIPreset::kScale150:
      return 1.5;
    case orvUI_v1::DPIPreset::kScale200:
      return 2;
    default:
      return scaleOfText();
  }
}
