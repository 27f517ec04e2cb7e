#pragma once

#include <QString>

#include "platform/orvUI_1_0/OrvUiApi.h"

namespace orvuilib {

/// How well `pattern` fits a text: its characters must stand there in their order, whatever their
/// case. Better are characters that follow one another or begin a word, and short texts. 0 when it
/// does not fit; an empty pattern fits everything alike.
ORVUI_EXPORT int fuzzyScore(const QString& pattern, const QString& text);

}  // namespace orvuilib
