#pragma once

#include <QSet>
#include <span>
#include <unordered_map>

#include "platform/orvUI_1_0/OrvUiApi.h"
#include "standalone/graph/model/Changes.h"
#include "standalone/graph/model/CompoundObject.h"
#include "standalone/widgets/compound/scene/Areas.h"
#include "standalone/widgets/compound/scene/BoxLayout.h"
#include "standalone/widgets/compound/scene/Items.h"

namespace orvuilib {

/// What lies on the canvas: the boxes, wires and notes of one level of a graph, by where they are.
/// It follows the changes that it is told of, each at a cost that the size of the level does not
/// matter to.
class ORVUI_EXPORT LevelScene {
 public:
  explicit LevelScene(const Theme& theme);
  ~LevelScene();
  LevelScene(const LevelScene&) = delete;
  LevelScene& operator=(const LevelScene&) = delete;

  /// Shows the level of a compound's node; null shows nothing. Nothing is selected then.
  void show(orvlib::NodeObject* levelNode);

  /// Null when nothing is shown.
  orvlib::NodeObject* levelNode() const { return level_.get(); }
  orvlib::CompoundObject* level() const { return level_ ? level_->compound() : nullptr; }

  /// Takes over what changed, and gives the parts of the canvas that look different then.
  Areas follow(std::span<const orvlib::NodeChange> changes);

  /// Takes over what watched ports have recorded since. `thingsMoved`: other things may be where a
  /// value was shown.
  Areas followValues(bool thingsMoved = false);

  /// Null for a node that is not on this level.
  BoxItem* find(const orvlib::NodeObject* node) const;
  NoteItem* find(const orvlib::AnnotationObject* annotation) const;

  /// The box that shows the port, and its slot there; both null for a port that is not shown.
  struct Shown {
    BoxItem* box = nullptr;
    const PortSlot* slot = nullptr;
  };
  Shown find(const orvlib::PortObject& port) const;

  BoxItem* inputs() const { return inputs_.get(); }
  BoxItem* outputs() const { return outputs_.get(); }
  const LooseGrid<BoxItem>& boxes() const { return boxGrid_; }
  const LooseGrid<Wire>& wires() const { return wireGrid_; }
  const LooseGrid<NoteItem>& notes() const { return noteGrid_; }
  std::size_t boxCount() const { return boxes_.size(); }
  std::size_t wireCount() const { return wireCount_; }

  /// With watched ports, in no order.
  const QSet<BoxItem*>& watchedBoxes() const { return watched_; }

  /// For each node in no order; not for the boundary.
  template <class Visit>
  void forEachBox(Visit visit) const {
    for (const auto& [node, box] : boxes_) visit(*box);
  }
  template <class Visit>
  void forEachNote(Visit visit) const {
    for (const auto& [annotation, note] : notes_) visit(*note);
  }

  /// What all of it covers; null when nothing is shown.
  QRectF bounds() const;

  /// Moves a box or note on the canvas alone, and gives what then looks different.
  QRectF move(BoxItem& box, const QPointF& topLeft);
  QRectF move(NoteItem& note, const QRectF& bounds);

  /// The box with its wires and values.
  static QRectF reachOf(const BoxItem& box);

  /// Shows a port with its components, or no longer.
  Areas toggleOpen(const orvlib::PortObject& port);

  /// Puts a box above all others.
  void raise(BoxItem& box) { box.serial = ++lastSerial_; }

  // The selection, in the order in which things were selected. Boundaries are never selected.
  const std::vector<BoxItem*>& selectedBoxes() const { return selectedBoxes_; }
  const std::vector<NoteItem*>& selectedNotes() const { return selectedNotes_; }
  void select(BoxItem& box);
  void select(NoteItem& note);
  void deselect(BoxItem& box);
  void deselect(NoteItem& note);
  void clearSelection();

  /// Counts up with each change of the selection, also by what goes.
  std::uint64_t selectionRound() const { return selectionRound_; }

  const Theme& theme() const { return theme_; }

 private:
  // LevelScene.cpp
  void clear();
  BoxItem& addBox(orvlib::NodeObject& node);
  void takeAway(BoxItem& box);
  void dropGone();
  std::unique_ptr<BoxItem> makeBoundary(BoxKind kind);
  void placeBoundaries();

  // LevelWires.cpp
  void addWire(BoxItem* from, orvlib::PortObject& source, BoxItem* to, orvlib::PortObject& target);
  void removeWire(Wire& wire);
  void removeWires(BoxItem& box);
  void addArrivingWires(BoxItem& box);
  void addLeavingWires(BoxItem& box);
  void setEnds(Wire& wire);
  bool isWiredAsConnected(const BoxItem& box) const;
  Areas rewireArriving(BoxItem& box);
  BoxItem* boxOf(const orvlib::PortObject& port) const;

  // LevelChanges.cpp
  Areas followNode(orvlib::NodeObject& node, unsigned char bits);
  Areas followLevel(unsigned char bits);
  Areas refreshFaces(unsigned char bits);
  Areas refresh(BoxItem& box);
  Areas rereadValues(BoxItem& box);
  QRectF followPosition(BoxItem& box);
  Areas followNotes();
  void addNotes(bool placed);
  NoteItem& addNote(orvlib::AnnotationObject& annotation);
  bool readNote(NoteItem& note) const;
  QPointF freePlaceForNote(const QRectF& bounds) const;

  // LevelValues.cpp
  void readValues(BoxItem& box);
  static bool hasNewValues(const BoxItem& box);
  bool isFree(const QRectF& area, const BoxItem& but) const;
  QRectF placeOfValue(const BoxItem& box, const PortSlot& slot, const QString& text,
                      int& hung) const;

  // LevelPlacement.cpp
  void placeAll();
  QPointF freePlaceFor(const BoxItem& box);

  const Theme& theme_;
  orvlib::NodeRef level_;
  std::unordered_map<const orvlib::NodeObject*, std::unique_ptr<BoxItem>> boxes_;
  std::unordered_map<const orvlib::AnnotationObject*, std::unique_ptr<NoteItem>> notes_;
  std::unique_ptr<BoxItem> inputs_;
  std::unique_ptr<BoxItem> outputs_;
  LooseGrid<BoxItem> boxGrid_;
  LooseGrid<Wire> wireGrid_;
  LooseGrid<NoteItem> noteGrid_;
  std::size_t wireCount_ = 0;
  std::vector<std::unique_ptr<BoxItem>> gone_;
  std::vector<BoxItem*> ioBoxes_;
  QSet<BoxItem*> watched_;
  OpenPorts openPorts_;
  std::vector<BoxItem*> selectedBoxes_;
  std::vector<NoteItem*> selectedNotes_;
  std::uint64_t selectionRound_ = 0;
  std::uint64_t lastSerial_ = 0;
  QPointF lastFree_;
};

}  // namespace orvuilib
