#pragma once

#include <QtGlobal>

#include "platform/orvUI_1_0/DPIPreset.h"

namespace orvuilib {

/// How large the editors that are made from now on draw: 1.5 or 2 as the preset says, else from 1
/// on as the program's text is.
ORVUI_EXPORT qreal currentScale();

}  // namespace orvuilib
