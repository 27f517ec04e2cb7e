#include "standalone/widgets/compound/parts/HelpOverlay.h"

#include <QPainter>

#include "standalone/widgets/compound/input/Shortcuts.h"

namespace orvuilib {
namespace {

constexpr int kLine = 19;
constexpr int kMargin = 22;

/// Lays the rows out in as many columns as fit, one below the other.
class Columns {
 public:
  Columns(QPainter& painter, const Theme& theme, const QRect& area)
      : painter_(painter),
        theme_(theme),
        area_(area.adjusted(theme.pixels(kMargin), theme.pixels(kMargin), -theme.pixels(kMargin),
                            -theme.pixels(kMargin))) {
    const int lines = static_cast<int>(shortcutTable().size()) + 10;
    const int fitting = std::max(area_.height() / theme.pixels(kLine), 1);
    count_ = std::max((lines + fitting - 1) / fitting, 1);
    width_ = area_.width() / count_;
    perColumn_ = (lines + count_ - 1) / count_;
  }

  void heading(const QString& text) {
    // Not at the end of a column.
    if (line_ > 0) ++line_;
    if (line_ + 2 >= perColumn_) nextColumn();
    painter_.setPen(theme_.palette().selected);
    painter_.drawText(place(), Qt::AlignVCenter | Qt::AlignLeft, text);
    ++line_;
  }

  void row(const QString& keys, const QString& text) {
    if (line_ >= perColumn_) nextColumn();
    const QRect whole = place();
    const int keyWidth = std::min(theme_.pixels(165), whole.width() * 2 / 5);
    painter_.setPen(theme_.palette().text);
    painter_.drawText(whole.adjusted(0, 0, keyWidth - whole.width(), 0), Qt::AlignVCenter, keys);
    painter_.setPen(theme_.palette().quietText);
    const QRect rest = whole.adjusted(keyWidth, 0, -theme_.pixels(12), 0);
    painter_.drawText(rest, Qt::AlignVCenter,
                      painter_.fontMetrics().elidedText(text, Qt::ElideRight, rest.width()));
    ++line_;
  }

 private:
  void nextColumn() {
    ++column_;
    line_ = 0;
  }
  QRect place() const {
    const int height = theme_.pixels(kLine);
    return {area_.left() + column_ * width_, area_.top() + line_ * height, width_, height};
  }

  QPainter& painter_;
  const Theme& theme_;
  QRect area_;
  int count_ = 1;
  int width_ = 0;
  int perColumn_ = 1;
  int column_ = 0;
  int line_ = 0;
};

}  // namespace

HelpOverlay::HelpOverlay(const Theme& theme, QWidget* parent) : QWidget(parent), theme_(theme) {
  setObjectName(QStringLiteral("helpOverlay"));
  setFocusPolicy(Qt::StrongFocus);
  hide();
}

void HelpOverlay::open() {
  setGeometry(parentWidget()->rect());
  show();
  raise();
  setFocus();
}

void HelpOverlay::leave() {
  hide();
  parentWidget()->setFocus();
}

void HelpOverlay::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  QColor shade = theme_.palette().field;
  shade.setAlpha(240);
  painter.fillRect(rect(), shade);
  painter.setFont(theme_.widgetFont());
  Columns columns(painter, theme_, rect());
  QString group;
  for (const ShortcutRow& row : shortcutTable()) {
    const QString its = QString::fromLatin1(row.group);
    if (its != group) columns.heading(group = its);
    columns.row(keysOf(row).join(QStringLiteral(", ")), QString::fromLatin1(row.text));
  }
}

void HelpOverlay::keyPressEvent(QKeyEvent*) { leave(); }
void HelpOverlay::mousePressEvent(QMouseEvent*) { leave(); }
void HelpOverlay::focusOutEvent(QFocusEvent*) { hide(); }

}  // namespace orvuilib
