#include "standalone/workspace/Theme.h"

#include <QApplication>
#include <array>
#include <utility>

#include "platform/OpenVeskUI/KQtUtil.h"
#include "standalone/workspace/WorkspaceStyle.h"

namespace vesk::theme {
namespace {

constexpr int kFontSize = 13;  // pixels

const std::array<std::pair<QPalette::ColorRole, QColor>, 16> kColours{{
    {QPalette::Window, QColor(0x2b, 0x2d, 0x31)},
    {QPalette::WindowText, QColor(0xd9, 0xdc, 0xe1)},
    {QPalette::Base, QColor(0x20, 0x22, 0x25)},
    {QPalette::AlternateBase, QColor(0x25, 0x27, 0x2b)},
    {QPalette::Text, QColor(0xd9, 0xdc, 0xe1)},
    {QPalette::PlaceholderText, QColor(0x8e, 0x95, 0xa0)},
    {QPalette::Button, QColor(0x38, 0x3b, 0x41)},
    {QPalette::ButtonText, QColor(0xd9, 0xdc, 0xe1)},
    {QPalette::BrightText, QColor(0xff, 0xff, 0xff)},
    {QPalette::Highlight, QColor(0x2d, 0x5b, 0x88)},
    {QPalette::HighlightedText, QColor(0xff, 0xff, 0xff)},
    {QPalette::ToolTipBase, QColor(0x3a, 0x3d, 0x43)},
    {QPalette::ToolTipText, QColor(0xe6, 0xe8, 0xec)},
    {QPalette::Link, QColor(0x8a, 0xb4, 0xe8)},
    {QPalette::LinkVisited, QColor(0xb8, 0xa4, 0xe0)},
    {QPalette::Shadow, QColor(0x14, 0x15, 0x17)},
}};

QFont font(const char* family) {
  QFont font(family);
  font.setPixelSize(scaled(kFontSize));
  return font;
}

}  // namespace

QPalette palette() {
  QPalette palette(QColor(0x38, 0x3b, 0x41), QColor(0x2b, 0x2d, 0x31));
  for (const auto& [role, colour] : kColours) palette.setColor(role, colour);
  const QColor disabled(0x82, 0x87, 0x90);
  for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
    palette.setColor(QPalette::Disabled, role, disabled);
  }
  palette.setColor(QPalette::Disabled, QPalette::Highlight, QColor(0x44, 0x48, 0x50));
  return palette;
}

QFont textFont() { return font("DejaVu Sans"); }

QFont codeFont() {
  QFont code = font("DejaVu Sans Mono");
  code.setStyleHint(QFont::Monospace);
  return code;
}

int scaled(int size) { return KQtUtil::dpiScale(size); }

void apply() {
  QApplication::setStyle(new WorkspaceStyle);
  QApplication::setPalette(palette());
  QApplication::setFont(textFont());
}

}  // namespace vesk::theme
