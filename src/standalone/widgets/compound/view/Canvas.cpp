#include "standalone/widgets/compound/view/Canvas.h"

#include <QHelpEvent>
#include <QKeyEvent>
#include <QToolTip>
#include <algorithm>
#include <cmath>

#include "standalone/widgets/look/Signs.h"

namespace orvuilib {

Canvas::Canvas(LevelScene& scene, const EditorPreferences& preferences, QWidget* parent)
    : QWidget(parent), scene_(scene), preferences_(preferences) {
  setAttribute(Qt::WA_OpaquePaintEvent);
  setFocusPolicy(Qt::StrongFocus);
  setMouseTracking(true);
  setMinimumSize(120, 80);
}

QPointF Canvas::toScene(const QPointF& point) const { return (point - origin_) / pixels(); }

QPointF Canvas::toWidget(const QPointF& point) const { return point * pixels() + origin_; }

QRectF Canvas::toWidget(const QRectF& area) const {
  return {toWidget(area.topLeft()), area.size() * pixels()};
}

QRectF Canvas::visibleArea() const { return {toScene(QPointF(0, 0)), QSizeF(size()) / pixels()}; }

void Canvas::setZoom(qreal zoom, const QPointF& fixed) {
  const QPointF scenePoint = toScene(fixed);
  zoom_ = std::clamp(zoom, kSmallestZoom, kLargestZoom);
  origin_ = fixed - scenePoint * pixels();
  update();
  tellOfView();
}

/// By whole pixels of the device, so that what is painted can be moved along.
void Canvas::panBy(const QPointF& pixels) {
  const qreal ratio = devicePixelRatioF();
  origin_ += QPointF((pixels * ratio).toPoint()) / ratio;
  QWidget::update();
  tellOfView();
}

void Canvas::centreOn(const QPointF& point) {
  origin_ = QPointF(width(), height()) / 2 - point * pixels();
  update();
  tellOfView();
}

void Canvas::fit(const QRectF& area) {
  if (area.isNull()) return;
  const QRectF wide = area.adjusted(-40, -40, 40, 40);
  const qreal scale = scene_.theme().scale();
  const qreal fitting = std::min(width() / wide.width(), height() / wide.height()) / scale;
  zoom_ = std::clamp(fitting, kSmallestZoom, 1.0);
  centreOn(area.center());
}

void Canvas::update() {
  picture_.setAllStale();
  QWidget::update();
}

void Canvas::repaintArea(const Areas& areas) {
  for (const QRectF& area : areas.rects()) {
    picture_.setStale(area);
    // Edges and halos reach over what they belong to.
    const QRectF reach = toWidget(area.adjusted(-12, -12, 12, 12)).adjusted(-3, -3, 3, 3);
    QWidget::update((reach & QRectF(rect())).toAlignedRect());
  }
}

Hit Canvas::hitAt(const QPointF& scenePoint) const {
  return orvuilib::hitAt(scene_, scenePoint, settings());
}

/// What was hovered may be gone: it is not looked at any more.
void Canvas::setHovered(const BoxItem* box, const Wire* wire) {
  if (box == look_.hoveredBox && wire == look_.hoveredWire) return;
  Areas touched = hoveredArea_;
  look_.hoveredBox = box;
  look_.hoveredWire = wire;
  hoveredArea_ = box ? box->bounds : QRectF();
  if (wire) hoveredArea_ |= wire->bounds;
  touched |= hoveredArea_;
  repaintArea(touched);
}

void Canvas::setAccepts(BoxPainter::Accepts accepts) {
  look_.accepts = std::move(accepts);
  update();
}

void Canvas::setReadOnly(const QString& reason) {
  if (reason == readOnly_) return;
  readOnly_ = reason;
  update();
}

void Canvas::setNotice(const QString& text) {
  if (text == notice_) return;
  notice_ = text;
  QWidget::update(noticeArea());
}

bool Canvas::event(QEvent* event) {
  if (event->type() == QEvent::ToolTip && input_) {
    const auto* help = static_cast<QHelpEvent*>(event);
    QToolTip::showText(help->globalPos(), input_->toolTipAt(help->pos()), this);
    return true;
  }
  // The editor's keys are the editor's, also where the window has the same ones.
  if (event->type() == QEvent::ShortcutOverride && input_) {
    event->setAccepted(input_->wantsKey(static_cast<QKeyEvent&>(*event)));
    return true;
  }
  if (event->type() == QEvent::WindowDeactivate && input_) input_->interrupted();
  return QWidget::event(event);
}

void Canvas::tellOfView() {
  if (input_) input_->viewChanged();
}

void Canvas::resizeEvent(QResizeEvent*) { tellOfView(); }

void Canvas::focusOutEvent(QFocusEvent* event) {
  QWidget::focusOutEvent(event);
  if (input_) input_->interrupted();
}

void Canvas::hideEvent(QHideEvent* event) {
  QWidget::hideEvent(event);
  if (input_) input_->interrupted();
}

/// The editor opens its menus itself.
void Canvas::contextMenuEvent(QContextMenuEvent* event) { event->accept(); }

void Canvas::mousePressEvent(QMouseEvent* event) {
  if (input_) input_->mousePressed(*event);
}

void Canvas::mouseMoveEvent(QMouseEvent* event) {
  if (input_) input_->mouseMoved(*event);
}

void Canvas::mouseReleaseEvent(QMouseEvent* event) {
  if (input_) input_->mouseReleased(*event);
}

void Canvas::mouseDoubleClickEvent(QMouseEvent* event) {
  if (input_) input_->doubleClicked(*event);
}

void Canvas::wheelEvent(QWheelEvent* event) {
  if (input_) input_->wheelTurned(*event);
  event->accept();
}

void Canvas::keyPressEvent(QKeyEvent* event) {
  if (!input_ || !input_->keyPressed(*event)) QWidget::keyPressEvent(event);
}

void Canvas::keyReleaseEvent(QKeyEvent* event) {
  if (input_) input_->keyReleased(*event);
}

void Canvas::leaveEvent(QEvent*) {
  if (input_) input_->pointerLeft();
}

/// Tab opens the menu of nodes.
bool Canvas::focusNextPrevChild(bool) { return false; }

PaintSettings Canvas::settings() const {
  return {pixels(),
          origin_,
          detailAt(pixels() / scene_.theme().scale()),
          preferences_.wireStyle,
          preferences_.showValues,
          readOnly_.isEmpty()};
}

void Canvas::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  paintPicture(painter);
  painter.setRenderHint(QPainter::Antialiasing);
  if (input_ && scene_.levelNode()) {
    painter.save();
    painter.translate(origin_);
    painter.scale(pixels(), pixels());
    input_->paintGesture(painter, settings());
    painter.restore();
  }
  paintNotice(painter);
}

/// What is painted on may have more pixels than the widget's own device.
void Canvas::paintPicture(QPainter& painter) {
  const qreal ratio = painter.device()->devicePixelRatioF();
  const QSize pixelSize(static_cast<int>(std::ceil(width() * ratio)),
                        static_cast<int>(std::ceil(height() * ratio)));
  // What was recorded without a change of the graph.
  repaintArea(scene_.followValues());
  picture_.look(pixelSize, ratio, {origin_ * ratio, pixels() * ratio});
  look_.settings = settings();
  look_.settings.origin = picture_.look().origin;
  look_.settings.zoom = picture_.look().zoom;
  look_.gridStep = preferences_.showGrid ? preferences_.gridStep : 0;
  ScenePainter scenePainter(scene_, look_);
  picture_.bringUpToDate(
      [&](QImage& picture, const QRect& area) { scenePainter.paint(picture, area); });
  drawn_ = {scenePainter.boxCount(), scenePainter.wireCount()};
  painter.drawImage(QPointF(), picture_.image());
}

QRect Canvas::noticeArea() const {
  const Theme& theme = scene_.theme();
  const int inset = theme.pixels(12);
  const int height = theme.pixels(24);
  return {inset, this->height() - inset - height, width() - 2 * inset, height};
}

/// A lock tells from afar that nothing can be edited.
void Canvas::paintNotice(QPainter& painter) {
  const Theme& theme = scene_.theme();
  painter.setFont(theme.widgetFont());
  if (!scene_.levelNode()) {
    painter.setPen(theme.palette().quietText);
    painter.drawText(rect(), Qt::AlignCenter, QStringLiteral("No graph"));
    return;
  }
  const QString& text = notice_.isEmpty() ? readOnly_ : notice_;
  if (text.isEmpty()) return;
  QRect area = noticeArea();
  const int lock = readOnly_.isEmpty() ? 0 : area.height();
  const int inset = theme.pixels(8);
  const int room = area.width() - lock - 2 * inset;
  const QString shown = painter.fontMetrics().elidedText(text, Qt::ElideRight, room);
  area.setWidth(painter.fontMetrics().horizontalAdvance(shown) + lock + 2 * inset);
  painter.setPen(Qt::NoPen);
  painter.setBrush(theme.palette().panel);
  painter.drawRoundedRect(area, inset / 2.0, inset / 2.0);
  const QRectF sign(area.left() + inset / 2.0, area.top(), lock, lock);
  if (lock) paintLock(painter, sign, theme.palette().selected);
  painter.setPen(theme.palette().quietText);
  painter.drawText(area.adjusted(inset + lock, 0, 0, 0), Qt::AlignLeft | Qt::AlignVCenter, shown);
}

}  // namespace orvuilib
