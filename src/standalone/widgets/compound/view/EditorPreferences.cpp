#include "standalone/widgets/compound/view/EditorPreferences.h"

#include <cmath>

#include "standalone/widgets/preferences/Preferences.h"

namespace orvuilib {
namespace {

const QString kSection = QStringLiteral("compoundEditor");
const QString kShowGrid = QStringLiteral("showGrid");
const QString kSnapToGrid = QStringLiteral("snapToGrid");
const QString kShowValues = QStringLiteral("showValues");
const QString kGridStep = QStringLiteral("gridStep");
const QString kWireStyle = QStringLiteral("wireStyle");
const QString kStyleNames[] = {QStringLiteral("curved"), QStringLiteral("straight"),
                               QStringLiteral("angled")};

void put(QJsonObject& section, const QString& key, const QJsonValue& value,
         const QJsonValue& atStart) {
  if (value == atStart) {
    section.remove(key);
  } else {
    section.insert(key, value);
  }
}

}  // namespace

EditorPreferences EditorPreferences::fromJson(const QJsonObject& section) {
  EditorPreferences read;
  read.showGrid = section.value(kShowGrid).toBool(read.showGrid);
  read.snapToGrid = section.value(kSnapToGrid).toBool(read.snapToGrid);
  read.showValues = section.value(kShowValues).toBool(read.showValues);
  const double step = section.value(kGridStep).toDouble(read.gridStep);
  if (step >= 5 && step <= 200) read.gridStep = step;
  for (int i = 0; i < 3; ++i) {
    if (section.value(kWireStyle) == kStyleNames[i]) read.wireStyle = static_cast<WireStyle>(i);
  }
  return read;
}

QJsonObject EditorPreferences::toJson(QJsonObject section) const {
  const EditorPreferences start;
  put(section, kShowGrid, showGrid, start.showGrid);
  put(section, kSnapToGrid, snapToGrid, start.snapToGrid);
  put(section, kShowValues, showValues, start.showValues);
  put(section, kGridStep, gridStep, start.gridStep);
  put(section, kWireStyle, kStyleNames[static_cast<int>(wireStyle)], kStyleNames[0]);
  return section;
}

EditorPreferences EditorPreferences::load() {
  return fromJson(Preferences::instance().section(kSection));
}

void EditorPreferences::save() const {
  Preferences& all = Preferences::instance();
  all.setSection(kSection, toJson(all.section(kSection)));
}

QPointF EditorPreferences::snapped(const QPointF& point) const {
  if (!snapToGrid) return point;
  return {std::round(point.x() / gridStep) * gridStep, std::round(point.y() / gridStep) * gridStep};
}

}  // namespace orvuilib
