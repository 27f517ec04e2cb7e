#pragma once

#include <QtGlobal>

#include "platform/orvUI_1_0/DPIPreset.h"

namespace orvuilib {

/// How large the editors that are made from now on draw: 1, 1.5 or 2.
ORVUI_EXPORT qreal currentScale();

}  // namespace orvuilib
