#include "standalone/widgets/parameters/ParameterPreferences.h"

#include <QJsonArray>
#include <cmath>

#include "standalone/widgets/preferences/Preferences.h"

namespace orvuilib {
namespace {

constexpr const char* kDecimalsKey = "decimals";
constexpr const char* kRangesKey = "sliderRanges";
constexpr const char* kClosedKey = "closedGroups";
constexpr int kMostDecimals = 9;

QJsonObject section() { return Preferences::instance().section(ParameterPreferences::kSection); }

/// An empty part is none.
template <class Part>
void store(const char* key, const Part& part) {
  QJsonObject all = section();
  if (part.isEmpty()) {
    all.remove(key);
  } else {
    all.insert(key, part);
  }
  Preferences::instance().setSection(ParameterPreferences::kSection, all);
}

}  // namespace

int ParameterPreferences::decimals() {
  const double stored = section().value(kDecimalsKey).toDouble(kDecimals);
  const bool fits = stored >= 0 && stored <= kMostDecimals && stored == std::floor(stored);
  return fits ? static_cast<int>(stored) : kDecimals;
}

void ParameterPreferences::setDecimals(int decimals) {
  QJsonObject all = section();
  all.remove(kDecimalsKey);
  if (decimals != kDecimals && decimals >= 0 && decimals <= kMostDecimals) {
    all.insert(kDecimalsKey, decimals);
  }
  Preferences::instance().setSection(kSection, all);
}

std::optional<NumberRange> ParameterPreferences::sliderRange(const QString& row) {
  const QJsonArray range = section().value(kRangesKey).toObject().value(row).toArray();
  if (range.size() != 2 || !range[0].isDouble() || !range[1].isDouble()) return std::nullopt;
  const NumberRange read(range[0].toDouble(), range[1].toDouble());
  return read.first < read.second ? std::optional(read) : std::nullopt;
}

void ParameterPreferences::setSliderRange(const QString& row, std::optional<NumberRange> range) {
  QJsonObject ranges = section().value(kRangesKey).toObject();
  ranges.remove(row);
  if (range) ranges.insert(row, QJsonArray{range->first, range->second});
  store(kRangesKey, ranges);
}

bool ParameterPreferences::isOpen(const QString& group) {
  return !section().value(kClosedKey).toArray().contains(group);
}

void ParameterPreferences::setOpen(const QString& group, bool open) {
  if (open == isOpen(group)) return;
  QJsonArray closed;
  for (const QJsonValue& name : section().value(kClosedKey).toArray()) {
    if (name != QJsonValue(group)) closed.append(name);
  }
  if (!open) closed.append(group);
  store(kClosedKey, closed);
}

}  // namespace orvuilib
