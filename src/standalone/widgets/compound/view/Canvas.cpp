#include "standalone/widgets/compound/view/Canvas.h"

#include <QHelpEvent>
#include <QKeyEvent>
#include <QToolTip>
#include <algorithm>

#include "standalone/widgets/compound/paint/NotePainter.h"

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

void Canvas::panBy(const QPointF& pixels) {
  origin_ += pixels;
  update();
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

void Canvas::repaintArea(const QRectF& area) {
  if (area.isNull()) return;
  // Edges and halos reach over what they belong to.
  update(toWidget(area.adjusted(-10, -10, 10, 10)).toAlignedRect().adjusted(-2, -2, 2, 2));
}

Hit Canvas::hitAt(const QPointF& scenePoint) const {
  return orvuilib::hitAt(scene_, scenePoint, preferences_.wireStyle, reach());
}

void Canvas::setHovered(const BoxItem* box, const Wire* wire) {
  if (box == hoveredBox_ && wire == hoveredWire_) return;
  // What was hovered may be gone.
  hoveredBox_ = box;
  hoveredWire_ = wire;
  update();
}

void Canvas::setAccepts(BoxPainter::Accepts accepts) {
  accepts_ = std::move(accepts);
  update();
}

void Canvas::setNotice(const QString& text) {
  if (text == notice_) return;
  notice_ = text;
  update();
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
  return {pixels(), detailAt(pixels() / scene_.theme().scale()), preferences_.wireStyle,
          preferences_.showValues};
}

void Canvas::paintEvent(QPaintEvent* event) {
  QPainter painter(this);
  const QRect area = event->rect();
  painter.fillRect(area, scene_.theme().palette().canvas);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setRenderHint(QPainter::TextAntialiasing);
  painter.translate(origin_);
  painter.scale(pixels(), pixels());
  if (scene_.levelNode()) {
    paintScene(painter, {toScene(area.topLeft()), QSizeF(area.size()) / pixels()});
  }
  painter.resetTransform();
  paintNotice(painter);
}

void Canvas::paintScene(QPainter& painter, const QRectF& area) {
  const PaintSettings settings = this->settings();
  if (preferences_.showGrid) {
    paintGrid(painter, area, preferences_.gridStep, pixels(), scene_.theme().palette());
  }
  // Backdrops below, sticky notes above.
  std::vector<const NoteItem*> notes;
  scene_.notes().search(area, [&notes](NoteItem& note) { notes.push_back(&note); });
  std::ranges::sort(notes, std::greater(), [](const NoteItem* note) {
    return note->bounds.width() * note->bounds.height() + (note->isBackdrop() ? 1e12 : 0);
  });
  for (const NoteItem* note : notes) {
    paintNote(painter, *note, scene_.theme(), settings);
  }
  visibleWires_.clear();
  scene_.wires().search(area, [this](Wire& wire) { visibleWires_.push_back(&wire); });
  const WirePainter wires(scene_.theme(), settings);
  wires.paint(painter, visibleWires_, hoveredWire_);
  paintBoxes(painter, area, settings);
  const bool readable = settings.detail != Detail::Far && settings.showValues;
  if (readable) wires.paintValues(painter, visibleWires_);
  if (input_) input_->paintGesture(painter, settings);
}

void Canvas::paintBoxes(QPainter& painter, const QRectF& area, const PaintSettings& settings) {
  visibleBoxes_.clear();
  // Ports reach over the edges of their boxes.
  scene_.boxes().search(area.adjusted(-10, 0, 10, 0),
                        [this](BoxItem& box) { visibleBoxes_.push_back(&box); });
  drawn_ = {visibleBoxes_.size(), visibleWires_.size()};
  const BoxPainter boxes(scene_.theme(), settings, accepts_);
  if (settings.detail == Detail::Far) return boxes.paintFar(painter, visibleBoxes_);
  std::ranges::sort(visibleBoxes_, {}, &BoxItem::serial);
  for (BoxItem* box : visibleBoxes_) boxes.paint(painter, *box, box == hoveredBox_);
}

void Canvas::paintNotice(QPainter& painter) {
  const Theme& theme = scene_.theme();
  QString text = notice_;
  if (!scene_.levelNode()) text = QStringLiteral("No graph");
  if (text.isEmpty()) return;
  painter.setFont(theme.widgetFont());
  painter.setPen(theme.palette().quietText);
  const int inset = theme.pixels(12);
  const QRect area = rect().adjusted(inset, inset, -inset, -inset);
  painter.drawText(area, scene_.levelNode() ? Qt::AlignLeft | Qt::AlignBottom : Qt::AlignCenter,
                   text);
}

}  // namespace orvuilib
