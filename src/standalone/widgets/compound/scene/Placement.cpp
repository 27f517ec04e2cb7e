#include "standalone/widgets/compound/scene/Placement.h"

#include <charconv>
#include <cmath>

namespace orvuilib::placement {
namespace {

constexpr qreal kFarthest = 1e6;

/// A number that begins at `at` and ends at `end`, or before a comma.
std::optional<qreal> takeNumber(const char*& at, const char* end) {
  double number = 0;
  const auto [next, error] = std::from_chars(at, end, number);
  if (error != std::errc() || !std::isfinite(number) || std::abs(number) > kFarthest) return {};
  at = next;
  return number;
}

}  // namespace

std::optional<QPointF> parsePoint(const std::string& text) {
  const char* at = text.data();
  const char* end = at + text.size();
  const auto x = takeNumber(at, end);
  if (!x || at == end || *at++ != ',') return {};
  const auto y = takeNumber(at, end);
  if (!y || at != end) return {};
  return QPointF(*x, *y);
}

std::optional<QPointF> pointIn(const orvlib::Properties& metadata, const char* key) {
  if (metadata.empty()) return {};
  const auto* values = metadata.find(key);
  if (!values) return {};
  return parsePoint(values->front());
}

QString toText(const QPointF& point) {
  const auto tenths = [](qreal number) {
    return QString::number(std::round(number * 10) / 10 + 0.0, 'g', 10);
  };
  return tenths(point.x()) + QLatin1Char(',') + tenths(point.y());
}

QString textIn(const orvlib::Properties& metadata, const char* key) {
  const auto* values = metadata.find(key);
  return values ? QString::fromStdString(values->front()) : QString();
}

}  // namespace orvuilib::placement
