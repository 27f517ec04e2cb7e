#include "standalone/workspace/Theme.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QStyle>
#include <cmath>

#include "standalone/workspace/Workspace.h"

namespace vesk {
namespace {

double linear(double channel) {
  return channel <= 0.03928 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

double luminance(const QColor& colour) {
  return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
         0.0722 * linear(colour.blueF());
}

double contrast(const QColor& a, const QColor& b) {
  const double one = luminance(a) + 0.05;
  const double other = luminance(b) + 0.05;
  return std::max(one, other) / std::min(one, other);
}

constexpr double kReadable = 4.5;

TEST(Theme, TextsCanBeReadOnWhatTheyStandOn) {
  const QPalette palette = theme::palette();
  const std::pair<QPalette::ColorRole, QPalette::ColorRole> pairs[] = {
      {QPalette::WindowText, QPalette::Window},
      {QPalette::Text, QPalette::Base},
      {QPalette::Text, QPalette::AlternateBase},
      {QPalette::PlaceholderText, QPalette::Base},
      {QPalette::ButtonText, QPalette::Button},
      {QPalette::HighlightedText, QPalette::Highlight},
      {QPalette::ToolTipText, QPalette::ToolTipBase}};
  for (const auto& [text, ground] : pairs) {
    EXPECT_GE(contrast(palette.color(text), palette.color(ground)), kReadable) << text;
  }
}

TEST(Theme, ColoursOfMessagesCanBeRead) {
  const QColor ground = theme::palette().color(QPalette::Base);
  for (const QColor& colour :
       {theme::kEcho, theme::kResult, theme::kError, theme::kWarning, theme::kDimText}) {
    EXPECT_GE(contrast(colour, ground), kReadable) << colour.name().toStdString();
  }
  EXPECT_GE(contrast(theme::palette().color(QPalette::WindowText), theme::kTitle), kReadable);
}

TEST(Theme, FontsAndSizesFollowTheScale) {
  Workspace workspace;
  theme::apply();
  const int font = QApplication::font().pixelSize();
  const int scrollBar = qApp->style()->pixelMetric(QStyle::PM_ScrollBarExtent);
  workspace.scaleForThisRun = 200;
  theme::apply();
  EXPECT_EQ(QApplication::font().pixelSize(), 2 * font);
  EXPECT_EQ(theme::codeFont().pixelSize(), 2 * font);
  EXPECT_EQ(qApp->style()->pixelMetric(QStyle::PM_ScrollBarExtent), 2 * scrollBar);
}

}  // namespace
}  // namespace vesk
