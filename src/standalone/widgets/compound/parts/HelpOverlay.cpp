#include "standalone/widgets/compound/parts/HelpOverlay.h"

#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>

#include "standalone/widgets/compound/parts/FocusLoss.h"
#include "standalone/widgets/compound/parts/HelpLayout.h"

namespace orvuilib {
namespace {

constexpr int kLine = 19;
constexpr int kMargin = 22;
constexpr int kGap = 18;

bool scrolls(int key) {
  switch (key) {
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
    case Qt::Key_Home:
    case Qt::Key_End:
      return true;
    default:
      return false;
  }
}

}  // namespace

/// The texts themselves, as high as they need.
class HelpOverlay::Page final : public QWidget {
 public:
  explicit Page(const Theme& theme)
      : theme_(theme), metrics_(theme.widgetFont()), groups_(helpGroups()), layout_(laidOut(1000)) {
    setFont(theme.widgetFont());
  }

  void fit(int width) {
    layout_ = laidOut(width);
    resize(width,
           static_cast<int>(layout_.lines()) * theme_.pixels(kLine) + 2 * theme_.pixels(kMargin));
    update();
  }

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    for (const HelpLayout::Column& column : layout_.columns()) paintColumn(painter, column);
  }

 private:
  HelpLayout laidOut(int width) const {
    return {groups_, metrics_, static_cast<qreal>(theme_.pixels(kGap)),
            static_cast<qreal>(width - 2 * theme_.pixels(kMargin))};
  }

  void paintColumn(QPainter& painter, const HelpLayout::Column& column) const {
    const qreal line = theme_.pixels(kLine);
    QRectF place(theme_.pixels(kMargin) + column.left, theme_.pixels(kMargin), column.width, line);
    for (std::size_t i = column.first; i < column.first + column.count; ++i) {
      painter.setPen(theme_.palette().selected);
      painter.drawText(place, Qt::AlignVCenter, groups_[i].heading);
      for (const HelpGroup::Row& row : groups_[i].rows) {
        place.translate(0, line);
        paintRow(painter, place, column.keyWidth, row);
      }
      place.translate(0, 2 * line);
    }
  }

  void paintRow(QPainter& painter, const QRectF& place, qreal keyWidth,
                const HelpGroup::Row& row) const {
    const auto draw = [this, &painter](const QRectF& area, const QString& text) {
      painter.drawText(area, Qt::AlignVCenter,
                       metrics_.elidedText(text, Qt::ElideRight, area.width() + 0.5));
    };
    QRectF keys = place;
    keys.setWidth(keyWidth - theme_.pixels(kGap) / 2.0);
    painter.setPen(theme_.palette().text);
    draw(keys, row.keys);
    painter.setPen(theme_.palette().quietText);
    draw(place.adjusted(keyWidth, 0, 0, 0), row.text);
  }

  const Theme& theme_;
  QFontMetricsF metrics_;
  std::vector<HelpGroup> groups_;
  HelpLayout layout_;
};

HelpOverlay::HelpOverlay(const Theme& theme, QWidget* parent)
    : QScrollArea(parent), theme_(theme), page_(new Page(theme)) {
  setObjectName(QStringLiteral("helpOverlay"));
  setFocusPolicy(Qt::StrongFocus);
  setFrameShape(QFrame::NoFrame);
  setPalette(theme.widgetPalette());
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setAttribute(Qt::WA_NoMousePropagation);
  setWidget(page_);
  // What lies below shines through a little.
  viewport()->setAutoFillBackground(false);
  page_->setAutoFillBackground(false);
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

void HelpOverlay::resizeEvent(QResizeEvent* event) {
  QScrollArea::resizeEvent(event);
  page_->fit(viewport()->width());
}

void HelpOverlay::paintEvent(QPaintEvent*) {
  QPainter painter(viewport());
  QColor shade = theme_.palette().field;
  shade.setAlpha(248);
  painter.fillRect(viewport()->rect(), shade);
}

void HelpOverlay::keyPressEvent(QKeyEvent* event) {
  if (scrolls(event->key())) {
    const bool ends = event->key() == Qt::Key_Home || event->key() == Qt::Key_End;
    QScrollBar& bar = *verticalScrollBar();
    if (ends) return bar.setValue(event->key() == Qt::Key_Home ? bar.minimum() : bar.maximum());
    return QScrollArea::keyPressEvent(event);
  }
  leave();
}

bool HelpOverlay::event(QEvent* event) {
  // Any plain key is for the help.
  if (event->type() == QEvent::ShortcutOverride) event->accept();
  return QScrollArea::event(event);
}

void HelpOverlay::mousePressEvent(QMouseEvent*) { leave(); }

void HelpOverlay::focusOutEvent(QFocusEvent* event) {
  if (leaves(*event)) hide();
}

}  // namespace orvuilib
