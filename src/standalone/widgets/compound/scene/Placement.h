#pragma once

#include <QPointF>
#include <QSizeF>
#include <QString>
#include <optional>

#include "platform/orvUI_1_0/OrvUiApi.h"
#include "standalone/graph/texts/Properties.h"

namespace orvuilib {

/// The metadata by which a graph says where its parts are. docs/editors.md lists it.
namespace placement {

inline constexpr const char* kPosition = "editor.position";
inline constexpr const char* kSize = "editor.size";
inline constexpr const char* kText = "editor.text";
inline constexpr const char* kColour = "editor.color";

/// Of the compound: where its own inputs and outputs are shown.
inline constexpr const char* kInputsPosition = "editor.inputsPosition";
inline constexpr const char* kOutputsPosition = "editor.outputsPosition";

/// "x,y", of finite numbers that are not beyond a million. Nothing for any other text.
ORVUI_EXPORT std::optional<QPointF> parsePoint(const std::string& text);
ORVUI_EXPORT std::optional<QPointF> pointIn(const orvlib::Properties& metadata, const char* key);

/// In tenths.
ORVUI_EXPORT QString toText(const QPointF& point);

/// The text of a key; empty without one.
ORVUI_EXPORT QString textIn(const orvlib::Properties& metadata, const char* key);

}  // namespace placement
}  // namespace orvuilib
