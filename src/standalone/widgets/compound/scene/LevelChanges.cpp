// How the scene follows its level.

#include "standalone/widgets/compound/scene/LevelScene.h"
#include "standalone/widgets/compound/scene/Placement.h"

namespace orvuilib {

using orvlib::NodeChange;
using orvlib::NodeObject;

namespace {

constexpr unsigned char kLooks = orvlib::kValueChange | orvlib::kPortChange |
                                 orvlib::kIdentityChange | orvlib::kWatchChange |
                                 orvlib::kWireChange;

/// After which boxes may be elsewhere or of another size.
constexpr unsigned char kMoves = orvlib::kPlaceChange | orvlib::kMetadataChange |
                                 orvlib::kPortChange | orvlib::kIdentityChange |
                                 orvlib::kWireChange;
constexpr QRectF kNewBackdrop(0, 0, 260, 160);
constexpr QRectF kNewNote(0, 0, 180, 90);
constexpr qreal kNoteGap = 24;

bool showsCompoundPorts(const NodeObject& node) {
  return node.nodeKind() == orvlib::NodeKind::Input || node.nodeKind() == orvlib::NodeKind::Output;
}

/// A text that names a colour as "#rrggbb"; else the other one.
QRgb colourOf(const QString& text, QRgb otherwise) {
  const QColor colour(text);
  return colour.isValid() ? colour.rgb() : otherwise;
}

}  // namespace

Areas LevelScene::follow(std::span<const NodeChange> changes) {
  if (!level_) return {};
  Areas touched;
  // First what came and went: wires are made between what is there.
  for (const NodeChange& change : changes) {
    if (change.bits & orvlib::kPlaceChange)
      touched |= followNode(*change.node, orvlib::kPlaceChange);
  }
  bool thingsMoved = false;
  for (const NodeChange& change : changes) {
    thingsMoved |= (change.bits & kMoves) != 0;
    if (change.node.get() == level_.get()) {
      touched |= followLevel(change.bits);
    } else {
      if (!(change.bits & orvlib::kPlaceChange)) touched |= followNode(*change.node, change.bits);
    }
  }
  dropGone();
  touched |= followValues(thingsMoved);
  return touched;
}

Areas LevelScene::followNode(NodeObject& node, unsigned char bits) {
  BoxItem* box = find(&node);
  if (node.parent() != level()) {
    if (!box) return {};
    Areas touched = reachOf(*box);
    takeAway(*box);
    if (showsCompoundPorts(node)) touched |= refreshFaces(orvlib::kPortChange);
    return touched;
  }
  if (!box) {
    box = &addBox(node);
    if (!box->placed) box->bounds.moveTopLeft(freePlaceFor(*box));
    boxGrid_.insert(*box);
    addArrivingWires(*box);
    addLeavingWires(*box);
    return showsCompoundPorts(node) ? refreshFaces(orvlib::kPortChange) : reachOf(*box);
  }
  Areas touched;
  if (bits & kLooks) {
    touched |= showsCompoundPorts(node) ? refreshFaces(orvlib::kPortChange) : refresh(*box);
  }
  if (bits & orvlib::kMetadataChange) touched |= followPosition(*box);
  return touched;
}

Areas LevelScene::followLevel(unsigned char bits) {
  Areas touched;
  if (bits & orvlib::kContentChange) touched |= followNotes();
  if (bits & kLooks) touched |= refreshFaces(bits);
  if (bits & orvlib::kMetadataChange) {
    touched |= followPosition(*inputs_);
    touched |= followPosition(*outputs_);
  }
  return touched;
}

/// The level's own ports may go from one box to another, and with them wires whose far ends are not
/// told of: unless only wires changed, all boxes that show such ports are wired anew.
Areas LevelScene::refreshFaces(unsigned char bits) {
  std::vector<BoxItem*> boxes = ioBoxes_;
  boxes.insert(boxes.end(), {inputs_.get(), outputs_.get()});
  Areas touched;
  const bool portsMayMove = bits & orvlib::kPortChange;
  for (BoxItem* box : boxes) {
    if (!portsMayMove) continue;
    touched |= reachOf(*box);
    removeWires(*box);
  }
  for (BoxItem* box : boxes) touched |= refresh(*box);
  for (BoxItem* box : boxes) {
    if (!portsMayMove) continue;
    addLeavingWires(*box);
    touched |= reachOf(*box);
  }
  return touched;
}

/// Ports and texts anew, and the wires that end here. What begins here is left alone when the ports
/// are as they were, for there may be any number of them.
Areas LevelScene::refresh(BoxItem& box) {
  const QRectF before = box.bounds;
  const std::vector<PortSlot> formerSlots = std::move(box.portSlots);
  boxGrid_.remove(box);
  layOut(box, openPorts_, theme_);
  boxGrid_.insert(box);
  Areas touched = before | box.bounds;
  touched |= rereadValues(box);
  const bool portsStay = before == box.bounds && box.portSlots == formerSlots;
  if (!portsStay || !isWiredAsConnected(box)) touched |= rewireArriving(box);
  if (portsStay) return touched;
  for (Wire* wire : box.leaving) {
    touched |= wire->bounds;
    setEnds(*wire);
    touched |= wire->bounds;
  }
  return touched;
}

/// All of them, since the ports may be others.
Areas LevelScene::rereadValues(BoxItem& box) {
  Areas touched;
  for (const ValueLabel& label : box.values) touched |= label.bounds;
  if (box.watched) {
    watched_.insert(&box);
  } else {
    watched_.remove(&box);
  }
  readValues(box);
  for (const ValueLabel& label : box.values) touched |= label.bounds;
  return touched;
}

QRectF LevelScene::followPosition(BoxItem& box) {
  const bool boundary = box.kind != BoxKind::Node;
  const auto& metadata = boundary ? level()->metadata() : box.node->metadata();
  const auto position = placement::pointIn(metadata, positionKeyOf(box));
  box.placed = position.has_value();
  return position ? move(box, *position) : QRectF();
}

/// Annotations are few: all are looked at.
Areas LevelScene::followNotes() {
  Areas touched;
  std::erase_if(notes_, [this, &touched](const auto& entry) {
    NoteItem& note = *entry.second;
    if (note.annotation->parent() == level()) return false;
    touched |= note.bounds;
    deselect(note);
    noteGrid_.remove(note);
    return true;
  });
  for (auto* annotation : level()->annotations().items()) {
    NoteItem* note = find(annotation);
    if (!note) {
      touched |= addNote(*annotation).bounds;
      continue;
    }
    const QRectF before = note->bounds;
    noteGrid_.remove(*note);
    if (readNote(*note)) touched |= before | note->bounds;
    noteGrid_.insert(*note);
  }
  return touched;
}

/// Those that the graph gives a place, or the others.
void LevelScene::addNotes(bool placed) {
  for (auto* annotation : level()->annotations().items()) {
    const auto position = placement::pointIn(annotation->metadata(), placement::kPosition);
    if (position.has_value() == placed) addNote(*annotation);
  }
}

NoteItem& LevelScene::addNote(orvlib::AnnotationObject& annotation) {
  auto made = std::make_unique<NoteItem>();
  NoteItem& note = *made;
  note.annotation = orvlib::AnnotationRef(&annotation);
  readNote(note);
  if (!placement::pointIn(annotation.metadata(), placement::kPosition)) {
    note.freePlace = freePlaceForNote(note.bounds);
    note.bounds.moveTopLeft(*note.freePlace);
  }
  noteGrid_.insert(note);
  notes_.emplace(&annotation, std::move(made));
  return note;
}

/// Below what is there already.
QPointF LevelScene::freePlaceForNote(const QRectF& bounds) const {
  QRectF place(lastFree_, bounds.size());
  for (int tries = 0; tries < 64; ++tries) {
    qreal top = place.top();
    const auto goBelow = [&top](const auto& other) {
      top = std::max(top, other.bounds.bottom() + kNoteGap);
    };
    boxGrid_.search(place, goBelow);
    noteGrid_.search(place, goBelow);
    if (top == place.top()) break;
    place.moveTop(top);
  }
  return place.topLeft();
}

/// False when nothing is different.
bool LevelScene::readNote(NoteItem& note) const {
  const orvlib::AnnotationObject& annotation = *note.annotation;
  const auto& metadata = annotation.metadata();
  QRectF bounds = note.isBackdrop() ? kNewBackdrop : kNewNote;
  bounds.moveTopLeft(note.freePlace.value_or(note.bounds.topLeft()));
  if (const auto at = placement::pointIn(metadata, placement::kPosition)) bounds.moveTopLeft(*at);
  if (const auto size = placement::pointIn(metadata, placement::kSize)) {
    bounds.setSize(QSizeF(size->x(), size->y()).expandedTo(kSmallestNote));
  }
  QString text = placement::textIn(metadata, placement::kText);
  if (text.isEmpty() && note.isBackdrop()) text = QString::fromStdString(annotation.name());
  const QRgb usual = note.isBackdrop() ? qRgb(0x4a, 0x55, 0x66) : qRgb(0xd9, 0xc8, 0x7a);
  const QRgb colour = colourOf(placement::textIn(metadata, placement::kColour), usual);
  if (bounds == note.bounds && text == note.text && colour == note.colour) return false;
  note.bounds = bounds;
  note.text = text;
  note.colour = colour;
  return true;
}

}  // namespace orvuilib
