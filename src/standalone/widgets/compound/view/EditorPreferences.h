#pragma once

#include <QJsonObject>

#include "platform/orvUI_1_0/OrvUiApi.h"
#include "standalone/widgets/compound/scene/WireShape.h"

namespace orvuilib {

/// What the user prefers of compound editors: the section "compoundEditor" of the preferences, in
/// which only stands what differs from the start.
struct ORVUI_EXPORT EditorPreferences {
  bool showGrid = true;
  bool snapToGrid = false;
  bool showValues = true;
  double gridStep = 20;  ///< 5 to 200 units of the canvas
  WireStyle wireStyle = WireStyle::Curved;

  bool operator==(const EditorPreferences&) const = default;

  /// What does not fit counts as absent.
  static EditorPreferences fromJson(const QJsonObject& section);

  /// `section` with these values; keys that are not known stay.
  QJsonObject toJson(QJsonObject section) const;

  static EditorPreferences load();
  void save() const;

  /// The nearest point of the grid when that is wanted.
  QPointF snapped(const QPointF& point) const;
};

}  // namespace orvuilib
