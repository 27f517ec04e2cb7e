#pragma once

#include <QPaintEvent>

#include "tests/standalone/widgets/compound/EditorTesting.h"

/// Notes which part of the canvas is painted.
class PaintedRegion final : public QObject {
 public:
  explicit PaintedRegion(QWidget& widget) { widget.installEventFilter(this); }

  /// All that was painted since the last call, also what is due now.
  QRegion take() {
    QApplication::processEvents();
    return std::exchange(region_, {});
  }

 private:
  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() == QEvent::Paint) region_ += static_cast<QPaintEvent*>(event)->region();
    return false;
  }

  QRegion region_;
};

/// Where two pictures of one size differ by more than rounding, as a text; empty when they do not.
inline std::string differenceOf(const QImage& a, const QImage& b) {
  QRect where;
  int most = 0;
  for (int y = 0; y < a.height(); ++y) {
    for (int x = 0; x < a.width(); ++x) {
      const QColor one = a.pixelColor(x, y);
      const QColor other = b.pixelColor(x, y);
      const int difference =
          std::max({std::abs(one.red() - other.red()), std::abs(one.green() - other.green()),
                    std::abs(one.blue() - other.blue())});
      if (difference <= 2) continue;
      where |= QRect(x, y, 1, 1);
      most = std::max(most, difference);
    }
  }
  if (where.isNull()) return {};
  const auto text = [](int number) { return std::to_string(number); };
  return "by " + text(most) + " at " + text(where.x()) + "," + text(where.y()) + " of " +
         text(where.width()) + "x" + text(where.height());
}

/// Looks at the pixels of a canvas.
class CanvasTest : public EditorTest {
 protected:
  /// What the canvas shows, as painted on a device of that many pixels a pixel.
  QImage picture(qreal ratio = 1) {
    QImage image(canvas().size() * ratio, QImage::Format_RGB32);
    image.setDevicePixelRatio(ratio);
    image.fill(Qt::black);
    canvas().render(&image);
    return image;
  }
  QImage pictureAnew(qreal ratio = 1) {
    canvas().update();
    return picture(ratio);
  }

  QColor colourAt(const QPointF& scenePoint) {
    return picture().pixelColor(canvas().toWidget(scenePoint).toPoint());
  }
  QRect seen(const QRectF& sceneArea) { return canvas().toWidget(sceneArea).toAlignedRect(); }
  const orvuilib::Palette& palette() { return scene().theme().palette(); }

  void watch(const std::string& name, const std::string& port) {
    host.run("orvWatchPoint g /" + name + " " + port + " -create");
    host.takeEchoes();
  }
};
