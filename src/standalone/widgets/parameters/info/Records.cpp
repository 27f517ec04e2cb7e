#include "standalone/widgets/parameters/info/Records.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "standalone/graph/model/WatchPointObject.h"
#include "standalone/graph/texts/ListText.h"
#include "standalone/widgets/parameters/ParameterRow.h"

namespace orvuilib {

using ORV_v1::StringArray;

namespace {

bool hasCurves(const orvlib::ValueType& type) {
  return !type.isArray() && type.scalar != orvlib::ScalarKind::String && type.componentCount() <= 4;
}

double numberOf(const std::string& text) {
  if (text == "true") return 1;
  if (text == "false") return 0;
  bool isNumber = false;
  const double number = toText(text).toDouble(&isNumber);
  return isNumber ? number : std::numeric_limits<double>::quiet_NaN();
}

}  // namespace

Records readRecords(const orvlib::PortObject& port) {
  Records records;
  orvlib::WatchPointObject* watch = port.watchPoint();
  StringArray values;
  if (!watch || !watch->getRecordedValues("value", values)) return records;
  if (hasCurves(port.valueType())) records.curves.resize(port.valueType().componentCount());
  if (!records.curves.empty()) {
    for (const std::string& name : port.valueType().components) records.names.append(toText(name));
  }
  for (const char* value : values) {
    const auto texts = orvlib::readList(value).value_or(std::vector<std::string>());
    for (std::size_t i = 0; i < records.curves.size(); ++i) {
      records.curves[i].push_back(numberOf(i < texts.size() ? texts[i] : std::string()));
    }
    QStringList shown;
    for (const std::string& text : texts) shown.append(toText(text));
    records.texts.append(shown.join(", "));
  }
  return records;
}

std::vector<CurveColumn> sampleCurve(std::span<const double> curve, int columns) {
  constexpr double kInfinite = std::numeric_limits<double>::infinity();
  const std::size_t count = std::min<std::size_t>(curve.size(), std::max(columns, 0));
  std::vector<CurveColumn> sampled(count, {kInfinite, -kInfinite});
  for (std::size_t i = 0; i < curve.size() && count > 0; ++i) {
    if (!std::isfinite(curve[i])) continue;
    CurveColumn& column = sampled[i * count / curve.size()];
    column.least = std::min(column.least, curve[i]);
    column.most = std::max(column.most, curve[i]);
  }
  return sampled;
}

}  // namespace orvuilib
