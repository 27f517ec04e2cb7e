#include "standalone/vesk/QtScreenPicker.h"

#include <QApplication>
#include <QEventLoop>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <QScreen>
#include <QWidget>
#include <memory>
#include <vector>

namespace vesk {
namespace {

struct Pick {
  QEventLoop loop;
  std::optional<QColor> colour;
};

/// One screen, frozen.
class Sheet : public QWidget {
 public:
  Sheet(QScreen& screen, Pick& pick)
      : QWidget(nullptr, Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint),
        pick_(pick),
        picture_(screen.grabWindow(0).toImage()) {
    picture_.setDevicePixelRatio(1);
    setObjectName(QStringLiteral("screenPicker"));
    setGeometry(screen.geometry());
    setCursor(Qt::CrossCursor);
    setMouseTracking(true);
    setAttribute(Qt::WA_OpaquePaintEvent);
  }

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    painter.fillRect(rect(), Qt::black);
    painter.drawImage(rect(), picture_);
    if (underMouse()) paintGlass(painter);
  }

  void mouseMoveEvent(QMouseEvent* event) override {
    at_ = event->position().toPoint();
    update();
  }

  void leaveEvent(QEvent*) override { update(); }

  void mousePressEvent(QMouseEvent* event) override {
    const QPoint pixel = pixelAt(event->position().toPoint());
    if (event->button() == Qt::LeftButton && picture_.valid(pixel)) {
      pick_.colour = picture_.pixelColor(pixel);
    }
    pick_.loop.quit();
  }

  void keyPressEvent(QKeyEvent* event) override {
    if (event->key() == Qt::Key_Escape) pick_.loop.quit();
  }

  void closeEvent(QCloseEvent*) override { pick_.loop.quit(); }

 private:
  /// On a screen of high density a point of the widget is several pixels.
  QPoint pixelAt(const QPoint& point) const {
    return {point.x() * picture_.width() / std::max(1, width()),
            point.y() * picture_.height() / std::max(1, height())};
  }

  void paintGlass(QPainter& painter) const {
    constexpr int kPixels = 11, kRadius = 66;
    const QPoint pixel = pixelAt(at_);
    const QRect seen(pixel.x() - kPixels / 2, pixel.y() - kPixels / 2, kPixels, kPixels);
    const QPoint away(at_.x() > width() - 3 * kRadius ? -1 : 1,
                      at_.y() > height() - 3 * kRadius ? -1 : 1);
    const QPoint centre = at_ + away * (kRadius + 12);
    const QRect glass(centre - QPoint(kRadius, kRadius), QSize(2 * kRadius, 2 * kRadius));
    QPainterPath circle;
    circle.addEllipse(glass);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.save();
    painter.setClipPath(circle);
    painter.drawImage(glass, picture_, seen);
    const double cell = 2.0 * kRadius / kPixels;
    painter.setPen(QPen(Qt::white, 1));
    painter.drawRect(QRectF(QPointF(centre) - QPointF(cell, cell) / 2, QSizeF(cell, cell)));
    painter.restore();
    painter.setPen(QPen(Qt::white, 3));
    painter.drawPath(circle);
    painter.setPen(QPen(Qt::black, 1));
    painter.drawPath(circle);
  }

  Pick& pick_;
  QImage picture_;
  QPoint at_;
};

KColor toKColor(const QColor& colour) {
  return {colour.redF(), colour.greenF(), colour.blueF(), colour.alphaF()};
}

}  // namespace

std::optional<KColor> QtScreenPicker::pick() {
  if (!qobject_cast<QApplication*>(QCoreApplication::instance())) return std::nullopt;
  Pick pick;
  // All pictures are taken before the first sheet covers anything.
  std::vector<std::unique_ptr<Sheet>> sheets;
  for (QScreen* screen : QGuiApplication::screens()) {
    sheets.push_back(std::make_unique<Sheet>(*screen, pick));
  }
  if (sheets.empty()) return std::nullopt;
  for (const auto& sheet : sheets) sheet->show();
  sheets.front()->activateWindow();
  sheets.front()->setFocus();
  pick.loop.exec();
  return pick.colour ? std::optional(toKColor(*pick.colour)) : std::nullopt;
}

}  // namespace vesk
