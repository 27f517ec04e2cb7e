#include "standalone/widgets/parameters/NumberFormat.h"

#include <QStringList>
#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>

#include "standalone/graph/types/Components.h"
#include "standalone/graph/types/ValueText.h"

namespace orvuilib {

using orvlib::ScalarKind;

namespace {

std::optional<double> finiteNumber(const QString& text) {
  bool isNumber = false;
  const double number = text.toDouble(&isNumber);
  return isNumber && std::isfinite(number) ? std::optional(number) : std::nullopt;
}

QString boundText(double bound) { return QString::number(bound, 'g', 10); }

/// The fewest digits that give the number back in single precision.
QString floatText(double number) {
  char digits[64];
  const auto end = std::to_chars(digits, digits + sizeof digits, static_cast<float>(number)).ptr;
  return QString::fromLatin1(digits, end - digits);
}

}  // namespace

std::optional<QString> NumberFormat::read(const QString& text, QString& reason) const {
  orvlib::ValueType type;
  type.scalar = kind;
  const auto parsed = orvlib::parseValue(type, {text.trimmed().toStdString()});
  if (!parsed.value) {
    reason = QString::fromStdString(parsed.reason);
    return std::nullopt;
  }
  const QString normal = QString::fromStdString(orvlib::printValue(*parsed.value).front());
  const double number = normal.toDouble();
  if (least && number < *least) {
    reason = QString("%1 is less than %2").arg(normal, boundText(*least));
    return std::nullopt;
  }
  if (most && number > *most) {
    reason = QString("%1 is more than %2").arg(normal, boundText(*most));
    return std::nullopt;
  }
  return normal;
}

QString NumberFormat::shortened(const QString& full) const {
  const auto number = finiteNumber(full);
  if (!number || kind != ScalarKind::Float) return full;
  const double size = std::abs(*number);
  // Very large and very small numbers keep the form with an exponent.
  if (size >= 1e7 || (size > 0 && size < std::pow(10.0, -decimals))) {
    const QString exponent = QString::number(*number, 'g', decimals + 1);
    return exponent.size() < full.size() ? exponent : full;
  }
  QString text = QString::number(*number, 'f', decimals);
  if (text.contains('.')) {
    while (text.endsWith('0')) text.chop(1);
    if (text.endsWith('.')) text.chop(1);
  }
  return text;
}

QString NumberFormat::print(double number) const {
  if (least) number = std::max(number, *least);
  if (most) number = std::min(number, *most);
  if (kind != ScalarKind::Integer) return floatText(number);
  using Limits = std::numeric_limits<std::int32_t>;
  const double whole = std::clamp<double>(std::round(number), Limits::min(), Limits::max());
  return QString::number(static_cast<std::int32_t>(whole));
}

QString shortText(const orvlib::Value& value) {
  constexpr std::size_t kMostTexts = 16;
  const bool isWhole = orvlib::componentCount(value) <= kMostTexts;
  NumberFormat format;
  format.kind = orvlib::scalarKindOf(value);
  QStringList texts;
  for (const std::string& text :
       orvlib::printValue(isWhole ? value : orvlib::componentsOf(value, 0, kMostTexts))) {
    texts.append(format.shortened(QString::fromStdString(text)));
  }
  return texts.join(", ") + (isWhole ? QString() : QString(QChar(0x2026)));
}

NumberFormat formatOf(const orvlib::PortObject& port, int decimals) {
  NumberFormat format;
  format.kind = port.valueType().scalar;
  format.decimals = decimals;
  format.least = metadataNumber(port, "min");
  format.most = metadataNumber(port, "max");
  format.step = format.kind == ScalarKind::Integer ? 1 : 0.1;
  return format;
}

std::optional<double> metadataNumber(const orvlib::PortObject& port, const char* key) {
  const auto* values = port.metadata().find(key);
  if (!values || values->size() != 1) return std::nullopt;
  return finiteNumber(QString::fromStdString(values->front()));
}

}  // namespace orvuilib
