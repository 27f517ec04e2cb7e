#include "standalone/widgets/look/Signs.h"

#include <QAction>
#include <QIconEngine>
#include <QLineEdit>
#include <algorithm>

namespace orvuilib {
namespace {

/// Lines instead of a picture, which would be blown up in a large field.
class CrossEngine final : public QIconEngine {
 public:
  explicit CrossEngine(const QColor& colour) : colour_(colour) {}

  void paint(QPainter* painter, const QRect& rect, QIcon::Mode, QIcon::State) override {
    const double side = std::min(rect.width(), rect.height());
    const QPointF middle = QRectF(rect).center();
    const double arm = side * 0.2;
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(QPen(colour_, side * 0.09, Qt::SolidLine, Qt::RoundCap));
    painter->drawLine(middle - QPointF(arm, arm), middle + QPointF(arm, arm));
    painter->drawLine(middle - QPointF(arm, -arm), middle + QPointF(arm, -arm));
    painter->restore();
  }

  QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
    QPixmap picture(size);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    paint(&painter, QRect(QPoint(), size), mode, state);
    return picture;
  }

  QIconEngine* clone() const override { return new CrossEngine(colour_); }

 private:
  QColor colour_;
};

}  // namespace

void paintLock(QPainter& painter, const QRectF& area, const QColor& colour) {
  const qreal unit = area.height() / 24;
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(colour, 1.6 * unit));
  painter.translate(area.topLeft());
  painter.drawArc(QRectF(8 * unit, 5 * unit, 8 * unit, 10 * unit), 0, 180 * 16);
  painter.setPen(Qt::NoPen);
  painter.setBrush(colour);
  painter.drawRoundedRect(QRectF(6 * unit, 10 * unit, 12 * unit, 9 * unit), 1.5 * unit, 1.5 * unit);
  painter.restore();
}

void addClearAction(QLineEdit& field) {
  const QColor colour = field.palette().color(QPalette::PlaceholderText);
  QAction* clear = field.addAction(QIcon(new CrossEngine(colour)), QLineEdit::TrailingPosition);
  clear->setObjectName("clear");
  clear->setToolTip("Empty the field");
  clear->setVisible(!field.text().isEmpty());
  QObject::connect(&field, &QLineEdit::textChanged, clear,
                   [clear](const QString& text) { clear->setVisible(!text.isEmpty()); });
  QObject::connect(clear, &QAction::triggered, &field, [&field] {
    // As a user's edit, which is told of as such.
    field.selectAll();
    field.del();
  });
}

}  // namespace orvuilib
