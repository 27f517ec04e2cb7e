#pragma once

#include <QStringList>

#include "platform/orvUI_1_0/HIGColor.h"
#include "platform/orvUI_1_0/OrvUiApi.h"
#include "standalone/widgets/parameters/NumberFormat.h"

namespace orvuilib {

/// The colour of three or four texts; opaque without a fourth.
ORVUI_EXPORT orvUI_v1::HIGColor colourOf(const QStringList& texts);

/// The first `count` components of a colour.
ORVUI_EXPORT QStringList textsOf(const orvUI_v1::HIGColor& colour, std::size_t count,
                                 const NumberFormat& format);

}  // namespace orvuilib
