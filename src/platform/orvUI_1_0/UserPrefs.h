#pragma once

#include <QJsonDocument>

#include "platform/orvUI_1_0/OrvUiApi.h"

namespace orvUI_v1 {

/// The preferences of all editors as one object, what `defaults` holds beside them included. An
/// empty document when there never was a preference and `defaults` holds nothing.
ORVUI_EXPORT QJsonDocument getUserPrefs(const QJsonDocument& defaults);

/// Replaces the preferences. Keys that no editor knows are kept, and values that do not fit count
/// as absent. A document that is no object changes nothing.
ORVUI_EXPORT void setUserPrefs(const QJsonDocument& preferences);

/// How many buttons the user's mouse has, 1 to 3; another number changes nothing. 3 at the start.
ORVUI_EXPORT void setNumberOfMouseButtons(int count);

}  // namespace orvUI_v1
