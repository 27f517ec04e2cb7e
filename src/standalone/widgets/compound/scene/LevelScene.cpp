#include "standalone/widgets/compound/scene/LevelScene.h"

#include <algorithm>

#include "standalone/widgets/compound/scene/Placement.h"

namespace orvuilib {

using orvlib::NodeKind;
using orvlib::NodeObject;

namespace {

/// How far the boundary is from what it bounds.
constexpr qreal kBoundaryGap = 140;

bool showsCompoundPorts(const NodeObject& node) {
  return node.nodeKind() == NodeKind::Input || node.nodeKind() == NodeKind::Output;
}

}  // namespace

LevelScene::LevelScene(const Theme& theme) : theme_(theme) {}

LevelScene::~LevelScene() { clear(); }

void LevelScene::clear() {
  clearSelection();
  boxGrid_.clear();
  wireGrid_.clear();
  noteGrid_.clear();
  const auto dropWires = [](BoxItem& box) {
    for (Wire* wire : box.arriving) delete wire;
  };
  forEachBox(dropWires);
  for (BoxItem* boundary : {inputs_.get(), outputs_.get()}) {
    if (boundary) dropWires(*boundary);
  }
  wireCount_ = 0;
  boxes_.clear();
  notes_.clear();
  inputs_.reset();
  outputs_.reset();
  ioBoxes_.clear();
  watched_.clear();
  openPorts_.clear();
}

void LevelScene::show(NodeObject* levelNode) {
  clear();
  level_ = orvlib::NodeRef(levelNode);
  if (!levelNode) return;
  const auto& nodes = level()->nodes();
  boxes_.reserve(nodes.count());
  inputs_ = makeBoundary(BoxKind::Inputs);
  outputs_ = makeBoundary(BoxKind::Outputs);
  for (NodeObject* node : nodes.items()) addBox(*node);
  addNotes(true);
  placeAll();
  addNotes(false);
  placeBoundaries();
  forEachBox([this](BoxItem& box) { addArrivingWires(box); });
  addArrivingWires(*outputs_);
  for (BoxItem* boundary : {inputs_.get(), outputs_.get()}) {
    if (boundary->watched) watched_.insert(boundary);
  }
  followValues();
}

std::unique_ptr<BoxItem> LevelScene::makeBoundary(BoxKind kind) {
  auto box = std::make_unique<BoxItem>();
  box->kind = kind;
  box->node = level_;
  layOut(*box, openPorts_, theme_);
  return box;
}

/// It stays where it was put; else beside what there is when the level is first shown.
void LevelScene::placeBoundaries() {
  QRectF content;
  forEachBox([&content](const BoxItem& box) { content |= box.bounds; });
  forEachNote([&content](const NoteItem& note) { content |= note.bounds; });
  if (content.isNull()) content = QRectF(-100, -60, 200, 120);
  const auto place = [this, &content](BoxItem& box, const char* key, qreal x) {
    const auto stored = placement::pointIn(level()->metadata(), key);
    box.placed = stored.has_value();
    const QPointF beside(x, content.center().y() - box.bounds.height() / 2);
    box.bounds.moveTopLeft(stored.value_or(beside));
    boxGrid_.insert(box);
  };
  place(*inputs_, placement::kInputsPosition,
        content.left() - kBoundaryGap - inputs_->bounds.width());
  place(*outputs_, placement::kOutputsPosition, content.right() + kBoundaryGap);
}

/// Without its wires; `placeAll` or the caller puts it into the grid.
BoxItem& LevelScene::addBox(NodeObject& node) {
  auto made = std::make_unique<BoxItem>();
  BoxItem& box = *made;
  box.node = orvlib::NodeRef(&node);
  box.serial = ++lastSerial_;
  if (const auto position = placement::pointIn(node.metadata(), placement::kPosition)) {
    box.bounds.moveTopLeft(*position);
    box.placed = true;
  }
  layOut(box, openPorts_, theme_);
  if (showsCompoundPorts(node)) ioBoxes_.push_back(&box);
  if (box.watched) watched_.insert(&box);
  boxes_.emplace(&node, std::move(made));
  return box;
}

/// It is no longer found, and goes with `dropGone`.
void LevelScene::takeAway(BoxItem& box) {
  removeWires(box);
  boxGrid_.remove(box);
  std::erase(ioBoxes_, &box);
  watched_.remove(&box);
  for (const PortSlot& slot : box.portSlots) openPorts_.remove(slot.port.get());
  const auto found = boxes_.find(box.node.get());
  gone_.push_back(std::move(found->second));
  boxes_.erase(found);
}

/// Takes all that went out of the selection at once.
void LevelScene::dropGone() {
  bool selected = false;
  for (const auto& box : gone_) selected |= std::exchange(box->selected, false);
  if (selected) {
    std::erase_if(selectedBoxes_, [](const BoxItem* box) { return !box->selected; });
    ++selectionRound_;
  }
  gone_.clear();
}

BoxItem* LevelScene::find(const NodeObject* node) const {
  const auto found = boxes_.find(node);
  return found == boxes_.end() ? nullptr : found->second.get();
}

NoteItem* LevelScene::find(const orvlib::AnnotationObject* annotation) const {
  const auto found = notes_.find(annotation);
  return found == notes_.end() ? nullptr : found->second.get();
}

LevelScene::Shown LevelScene::find(const orvlib::PortObject& port) const {
  BoxItem* box = boxOf(port);
  const PortSlot* slot = box ? slotFor(*box, port) : nullptr;
  return slot ? Shown{box, slot} : Shown{};
}

QRectF LevelScene::bounds() const {
  if (!level_) return {};
  QRectF all = inputs_->bounds | outputs_->bounds;
  forEachBox([&all](const BoxItem& box) { all |= box.bounds; });
  forEachNote([&all](const NoteItem& note) { all |= note.bounds; });
  return all;
}

QRectF LevelScene::reachOf(const BoxItem& box) {
  QRectF reach = box.bounds;
  for (const Wire* wire : box.arriving) reach |= wire->bounds;
  for (const Wire* wire : box.leaving) reach |= wire->bounds;
  for (const ValueLabel& label : box.values) reach |= label.bounds;
  return reach;
}

QRectF LevelScene::move(BoxItem& box, const QPointF& topLeft) {
  if (box.bounds.topLeft() == topLeft) return {};
  const QRectF before = reachOf(box);
  const QPointF away = topLeft - box.bounds.topLeft();
  for (ValueLabel& label : box.values) label.bounds.translate(away);
  boxGrid_.remove(box);
  box.bounds.moveTopLeft(topLeft);
  boxGrid_.insert(box);
  for (Wire* wire : box.arriving) setEnds(*wire);
  for (Wire* wire : box.leaving) setEnds(*wire);
  return before | reachOf(box);
}

QRectF LevelScene::move(NoteItem& note, const QRectF& bounds) {
  if (note.bounds == bounds) return {};
  const QRectF before = note.bounds;
  noteGrid_.remove(note);
  note.bounds = bounds;
  noteGrid_.insert(note);
  return before | bounds;
}

Areas LevelScene::toggleOpen(const orvlib::PortObject& port) {
  const Shown shown = find(port);
  if (!shown.box) return {};
  if (!openPorts_.remove(&port)) openPorts_.insert(&port);
  return refresh(*shown.box);
}

void LevelScene::select(BoxItem& box) {
  if (box.selected || box.kind != BoxKind::Node) return;
  box.selected = true;
  selectedBoxes_.push_back(&box);
  ++selectionRound_;
}

void LevelScene::select(NoteItem& note) {
  if (note.selected) return;
  note.selected = true;
  selectedNotes_.push_back(&note);
  ++selectionRound_;
}

/// From the back: what goes all at once was mostly selected all at once.
void LevelScene::deselect(BoxItem& box) {
  if (!box.selected) return;
  box.selected = false;
  const auto found = std::find(selectedBoxes_.rbegin(), selectedBoxes_.rend(), &box);
  selectedBoxes_.erase(std::next(found).base());
  ++selectionRound_;
}

void LevelScene::deselect(NoteItem& note) {
  if (!note.selected) return;
  note.selected = false;
  std::erase(selectedNotes_, &note);
  ++selectionRound_;
}

void LevelScene::clearSelection() {
  if (selectedBoxes_.empty() && selectedNotes_.empty()) return;
  for (BoxItem* box : selectedBoxes_) box->selected = false;
  for (NoteItem* note : selectedNotes_) note->selected = false;
  selectedBoxes_.clear();
  selectedNotes_.clear();
  ++selectionRound_;
}

}  // namespace orvuilib
