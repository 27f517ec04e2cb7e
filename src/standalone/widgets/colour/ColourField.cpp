#include "standalone/widgets/colour/ColourField.h"

#include <QConicalGradient>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <algorithm>
#include <cmath>
#include <numbers>

#include "standalone/widgets/colour/ColourRegistry.h"
#include "standalone/widgets/colour/ManagedColour.h"

namespace orvuilib {
namespace {

constexpr int kImageSize = 48;
constexpr int kHueStops = 36;

/// Of the widget's shorter side.
constexpr double kRingWidth = 0.09;
constexpr double kStripWidth = 0.11;

QColor screenOf(const Hsv& hsv) { return toScreen(fromMixing(fromHsv(hsv))); }

float within(double value) { return static_cast<float>(std::clamp(value, 0.0, 1.0)); }

/// What is not moved stays, also where it lies beyond the field: a colour may be brighter than
/// white, and no brightness is the last.
Hsv stepped(Hsv hsv, const Hsv& by) {
  const float hue = hsv.h + by.h;
  if (by.h != 0) hsv.h = hue - std::floor(hue);
  if (by.s != 0) hsv.s = within(hsv.s + by.s);
  if (by.v != 0) hsv.v = std::max(0.0f, hsv.v + by.v);
  return hsv;
}

}  // namespace

ColourField::ColourField(QWidget* parent) : QWidget(parent) {
  setFocusPolicy(Qt::StrongFocus);
  connect(&ColourRegistry::instance(), &ColourRegistry::changed, this, &ColourField::drop);
}

void ColourField::drop() {
  square_ = QImage();
  update();
}

void ColourField::setShape(Shape shape) {
  shape_ = shape;
  update();
}

void ColourField::setHsv(const Hsv& hsv) {
  if (hsv.h != hsv_.h) square_ = QImage();
  hsv_ = hsv;
  update();
}

QSize ColourField::sizeHint() const {
  const int side = fontMetrics().height() * 12;
  return {side, side};
}

QRectF ColourField::hueArea() const {
  const double side = std::min(width(), height());
  if (shape_ == kSquare) {
    return {width() - side * kStripWidth, 0, side * kStripWidth, double(height())};
  }
  return {(width() - side) / 2, (height() - side) / 2, side, side};
}

QRectF ColourField::squareArea() const {
  const QRectF hues = hueArea();
  const double side = std::min(width(), height());
  if (shape_ == kSquare) return {0, 0, hues.left() - side * 0.04, double(height())};
  const double half = side * (0.5 - kRingWidth) / std::numbers::sqrt2 - 2;
  const QPointF centre = hues.center();
  return {centre.x() - half, centre.y() - half, 2 * half, 2 * half};
}

const QImage& ColourField::squareImage() {
  if (!square_.isNull()) return square_;
  square_ = QImage(kImageSize, kImageSize, QImage::Format_RGB32);
  for (int y = 0; y < kImageSize; ++y) {
    auto* line = reinterpret_cast<QRgb*>(square_.scanLine(y));
    for (int x = 0; x < kImageSize; ++x) {
      constexpr float kLast = kImageSize - 1;
      line[x] =
          screenOf({hsv_.h, static_cast<float>(x) / kLast, 1.0f - static_cast<float>(y) / kLast})
              .rgb();
    }
  }
  return square_;
}

void ColourField::paintHues(QPainter& painter) const {
  const QRectF area = hueArea();
  const auto fill = [](QGradient& gradient) {
    for (int i = 0; i <= kHueStops; ++i) {
      const double at = static_cast<double>(i) / kHueStops;
      gradient.setColorAt(at, screenOf({static_cast<float>(at), 1.0f, 1.0f}));
    }
  };
  if (shape_ == kSquare) {
    QLinearGradient strip(area.bottomLeft(), area.topLeft());
    fill(strip);
    painter.fillRect(area, strip);
    return;
  }
  QConicalGradient ring(area.center(), 0);
  fill(ring);
  const double width = area.width() * kRingWidth;
  QPainterPath path;
  path.addEllipse(area.adjusted(1, 1, -1, -1));
  path.addEllipse(area.adjusted(width, width, -width, -width));
  painter.fillPath(path, ring);
}

void ColourField::paintMarkers(QPainter& painter) const {
  const QRectF square = squareArea();
  const QPointF at(square.left() + within(hsv_.s) * square.width(),
                   square.bottom() - within(hsv_.v) * square.height());
  const QRectF hues = hueArea();
  QPointF hueAt(hues.center().x(), hues.bottom() - within(hsv_.h) * hues.height());
  if (shape_ == kWheel) {
    const double angle = hsv_.h * 2 * std::numbers::pi;
    const double radius = hues.width() * (1 - kRingWidth) / 2;
    hueAt = hues.center() + QPointF(std::cos(angle), -std::sin(angle)) * radius;
  }
  painter.setBrush(Qt::NoBrush);
  for (const QPointF& centre : {at, hueAt}) {
    painter.setPen(QPen(Qt::black, 3));
    painter.drawEllipse(centre, 5, 5);
    painter.setPen(QPen(Qt::white, 1.5));
    painter.drawEllipse(centre, 5, 5);
  }
}

void ColourField::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
  painter.drawImage(squareArea(), squareImage());
  paintHues(painter);
  paintMarkers(painter);
}

ColourField::Part ColourField::partAt(const QPointF& point) const {
  if (squareArea().contains(point)) return Part::Square;
  if (shape_ == kSquare) return hueArea().contains(point) ? Part::Hue : Part::None;
  const QPointF offset = point - hueArea().center();
  const double radius = std::hypot(offset.x(), offset.y()) / hueArea().width();
  return radius <= 0.5 && radius >= 0.5 - kRingWidth ? Part::Hue : Part::None;
}

float ColourField::hueAt(const QPointF& point) const {
  const QRectF area = hueArea();
  if (shape_ == kSquare) return within((area.bottom() - point.y()) / area.height());
  const QPointF offset = point - area.center();
  const double turn = std::atan2(-offset.y(), offset.x()) / (2 * std::numbers::pi);
  return static_cast<float>(turn - std::floor(turn));
}

void ColourField::change(const Hsv& hsv) {
  if (hsv == hsv_) return;
  setHsv(hsv);
  emit moved(hsv_);
}

void ColourField::moveTo(const QPointF& point) {
  Hsv hsv = hsv_;
  if (dragged_ == Part::Hue) {
    hsv.h = hueAt(point);
  } else {
    const QRectF area = squareArea();
    hsv.s = within((point.x() - area.left()) / area.width());
    hsv.v = within((area.bottom() - point.y()) / area.height());
  }
  change(hsv);
}

void ColourField::mousePressEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return;
  dragged_ = partAt(event->position());
  if (dragged_ != Part::None) moveTo(event->position());
}

void ColourField::mouseMoveEvent(QMouseEvent* event) {
  if (dragged_ != Part::None) moveTo(event->position());
}

void ColourField::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton || dragged_ == Part::None) return;
  dragged_ = Part::None;
  emit finished();
}

void ColourField::keyPressEvent(QKeyEvent* event) {
  const float step = event->modifiers() & Qt::ShiftModifier ? 0.1f : 0.01f;
  struct KeyRow {
    int key;
    Hsv by;
  };
  const KeyRow rows[] = {
      {Qt::Key_Left, {0, -step, 0}},  {Qt::Key_Right, {0, step, 0}},
      {Qt::Key_Up, {0, 0, step}},     {Qt::Key_Down, {0, 0, -step}},
      {Qt::Key_PageUp, {step, 0, 0}}, {Qt::Key_PageDown, {-step, 0, 0}},
  };
  const auto* row = std::ranges::find(rows, event->key(), &KeyRow::key);
  if (row == std::end(rows)) return QWidget::keyPressEvent(event);
  change(stepped(hsv_, row->by));
  emit finished();
}

}  // namespace orvuilib
