#include "standalone/widgets/look/Theme.h"

#include <algorithm>
#include <string>
#include <unordered_map>

namespace orvuilib {
namespace {

constexpr int kTextSize = 12;

QFont fontOf(qreal size, bool bold) {
  QFont font(QStringLiteral("DejaVu Sans"));
  font.setStyleHint(QFont::SansSerif);
  font.setPixelSize(qRound(size));
  font.setBold(bold);
  font.setHintingPreference(QFont::PreferNoHinting);
  return font;
}

/// Hues that the eye tells apart, all of one calm strength.
struct NamedColour {
  std::string_view name;
  QRgb colour;
};
constexpr NamedColour kTypeColours[] = {
    {"bool", 0xffd98a8a},    {"int", 0xff7fc4c9},     {"float", 0xff9cc57e},
    {"string", 0xffd8a5c9},  {"vector2", 0xff8fa8e0}, {"vector3", 0xff7d93e6},
    {"vector4", 0xffa08fe6}, {"color3", 0xffe0c26a},  {"color4", 0xffe8d48f},
    {"matrix3", 0xffc79a6b}, {"matrix4", 0xffd9a066},
};

std::uint32_t hashOf(std::string_view text) {
  std::uint32_t hash = 2166136261u;
  for (const char each : text) hash = (hash ^ static_cast<unsigned char>(each)) * 16777619u;
  return hash;
}

/// The element's type for an array.
std::string_view innermost(std::string_view type) {
  while (type.starts_with("array<") && type.ends_with(">")) {
    type = type.substr(6, type.size() - 7);
  }
  return type;
}

/// "core::math" of "core::math::add"; the whole of any other text.
std::string_view libraryOf(std::string_view type) {
  const auto end = type.rfind("::");
  return end == type.npos ? type : type.substr(0, end);
}

QColor hued(std::string_view text, int saturation, int lightness) {
  return QColor::fromHsl(static_cast<int>(hashOf(text) % 360), saturation, lightness);
}

}  // namespace

Theme::Theme(qreal scale)
    : scale_(scale),
      font_(fontOf(kTextSize - 1, false)),
      titleFont_(fontOf(kTextSize, true)),
      widgetFont_(fontOf(kTextSize * scale, false)),
      metrics_(font_),
      titleMetrics_(titleFont_),
      advances_(measure(metrics_)),
      titleAdvances_(measure(titleMetrics_)) {}

QPalette Theme::widgetPalette() const {
  QPalette palette;
  palette.setColor(QPalette::Window, palette_.panel);
  palette.setColor(QPalette::WindowText, palette_.text);
  palette.setColor(QPalette::Base, palette_.field);
  palette.setColor(QPalette::AlternateBase, palette_.panel);
  palette.setColor(QPalette::Text, palette_.text);
  palette.setColor(QPalette::Button, palette_.panel);
  palette.setColor(QPalette::ButtonText, palette_.text);
  palette.setColor(QPalette::PlaceholderText, palette_.quietText);
  palette.setColor(QPalette::Highlight, QColor(0x4d, 0x62, 0x84));
  palette.setColor(QPalette::HighlightedText, palette_.text);
  palette.setColor(QPalette::ToolTipBase, palette_.panel);
  palette.setColor(QPalette::ToolTipText, palette_.text);
  const QColor faint(0x70, 0x75, 0x7e);
  palette.setColor(QPalette::Disabled, QPalette::ButtonText, faint);
  palette.setColor(QPalette::Disabled, QPalette::WindowText, faint);
  palette.setColor(QPalette::Disabled, QPalette::Text, faint);
  return palette;
}

Theme::Advances Theme::measure(const QFontMetricsF& metrics) {
  Advances advances{};
  for (std::size_t i = 32; i < advances.size(); ++i) {
    advances[i] = metrics.horizontalAdvance(QChar(static_cast<char16_t>(i)));
  }
  return advances;
}

qreal Theme::width(const QString& text, const QFontMetricsF& metrics, const Advances& advances) {
  qreal width = 0;
  for (const QChar each : text) {
    if (each.unicode() >= advances.size()) return metrics.horizontalAdvance(text);
    width += advances[each.unicode()];
  }
  return width;
}

qreal Theme::width(const std::string& utf8, const QFontMetricsF& metrics,
                   const Advances& advances) {
  qreal width = 0;
  for (const char each : utf8) {
    const auto letter = static_cast<unsigned char>(each);
    if (letter >= advances.size()) {
      return metrics.horizontalAdvance(QString::fromStdString(utf8));
    }
    width += advances[letter];
  }
  return width;
}

QString Theme::elided(const QString& text, qreal width) const {
  return textWidth(text) <= width ? text : metrics_.elidedText(text, Qt::ElideRight, width);
}

QColor Theme::typeColour(std::string_view type) {
  const std::string_view name = innermost(type);
  const auto found = std::ranges::find(kTypeColours, name, &NamedColour::name);
  return found == std::end(kTypeColours) ? hued(name, 110, 160) : QColor(found->colour);
}

QColor Theme::titleColour(std::string_view type) const {
  if (type == "compound") return {0x5b, 0x54, 0x74};
  if (type == "input" || type == "output") return {0x4a, 0x5d, 0x56};
  // No red, which would look like trouble.
  const int hue = 90 + static_cast<int>(hashOf(libraryOf(type)) % 220);
  return QColor::fromHsl(hue, 34, 88);
}

}  // namespace orvuilib
