#include "standalone/vesk/QtScreenPicker.h"

#include <QApplication>
#include <QEventLoop>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <QScreen>
#include <QWidget>
#include <QWindow>
#include <optional>
#include <vector>

#include "standalone/host/engine/HostSession.h"

namespace vesk {
namespace {

struct Pick {
  QEventLoop loop;
  std::optional<QColor> colour;
};

/// One screen, frozen. The first sheet is modal, so that it can be reached from a modal dialog;
/// the others belong to it.
class Sheet : public QWidget {
 public:
  Sheet(const QScreen& screen, const QImage& picture, Pick& pick, QWidget* first)
      : QWidget(first, Qt::Window | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint),
        pick_(pick),
        picture_(picture) {
    setObjectName(QStringLiteral("screenPicker"));
    setGeometry(screen.geometry());
    setCursor(Qt::CrossCursor);
    setMouseTracking(true);
    setAttribute(Qt::WA_OpaquePaintEvent);
    if (!first) setWindowModality(Qt::ApplicationModal);
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
    if (event->button() == Qt::LeftButton) {
      const QPoint pixel = pixelAt(event->position().toPoint());
      if (!picture_.valid(pixel) || !qAlpha(picture_.pixel(pixel))) return;
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

struct ScreenPicture {
  QScreen* screen;
  QImage image;  ///< in the screen's own pixels; transparent where nothing can be picked
};

QSize pixelsOf(const QScreen& screen) {
  return (QSizeF(screen.size()) * screen.devicePixelRatio()).toSize();
}

/// This program's windows as they lie on the screen. Null when none is there.
QImage pictureOfOwnWindows(const QScreen& screen) {
  QImage picture;
  for (QWindow* window : QGuiApplication::topLevelWindows()) {
    if (!window->isVisible() || window->screen() != &screen) continue;
    QWidget* widget = QWidget::find(window->winId());
    if (!widget) continue;
    if (picture.isNull()) {
      picture = QImage(pixelsOf(screen), QImage::Format_ARGB32);
      picture.setDevicePixelRatio(screen.devicePixelRatio());
      picture.fill(Qt::transparent);
    }
    QPainter(&picture).drawPixmap(window->position() - screen.geometry().topLeft(), widget->grab());
  }
  return picture;
}

/// All are taken before the first sheet covers anything.
std::vector<ScreenPicture> takePictures() {
  std::vector<ScreenPicture> pictures;
  for (QScreen* screen : QGuiApplication::screens()) {
    QImage image = screen->grabWindow(0).toImage().convertToFormat(QImage::Format_RGB32);
    if (image.isNull()) image = pictureOfOwnWindows(*screen);
    image.setDevicePixelRatio(1);
    if (!image.isNull()) pictures.push_back({screen, image});
  }
  return pictures;
}

KColor toKColor(const QColor& colour) {
  return {colour.redF(), colour.greenF(), colour.blueF(), colour.alphaF()};
}

}  // namespace

std::optional<KColor> QtScreenPicker::pick() {
  if (!qobject_cast<QApplication*>(QCoreApplication::instance())) return std::nullopt;
  const std::vector<ScreenPicture> pictures = takePictures();
  if (pictures.empty()) {
    if (HostSession* session = HostSession::current()) {
      session->messages().warning(
          "No colour can be picked: the window system gives no picture of the screen");
    }
    return std::nullopt;
  }
  Pick pick;
  Sheet first(*pictures.front().screen, pictures.front().image, pick, nullptr);
  for (std::size_t i = 1; i < pictures.size(); ++i) {
    (new Sheet(*pictures[i].screen, pictures[i].image, pick, &first))->show();
  }
  first.show();
  first.activateWindow();
  // On whichever screen the pointer is, Escape cancels.
  first.grabKeyboard();
  pick.loop.exec();
  return pick.colour ? std::optional(toKColor(*pick.colour)) : std::nullopt;
}

}  // namespace vesk
