// What comes in many at once and has to find its place: pasting, duplicating, grouping, exploding.

#include <utility>

#include "platform/ORV_1_0/AnnotationList.h"
#include "standalone/graph/clipboard/Clipboard.h"
#include "standalone/graph/model/ContainerObject.h"
#include "standalone/widgets/compound/edits/LastCopy.h"
#include "standalone/widgets/compound/edits/NodeEdits.h"
#include "standalone/widgets/compound/scene/Placement.h"

namespace orvuilib::edits {

using orvlib::NodeObject;
using orvlib::NodeRef;
using orvUI_v1::CommandHook;

namespace {

/// How far a copy is from what it is of.
constexpr QPointF kBeside(40, 40);

template <class List, class Ref>
std::vector<Ref> lastOf(const List& list, unsigned int first) {
  std::vector<Ref> fresh;
  for (unsigned int i = first; i < list.count(); ++i) fresh.emplace_back(list.at(i));
  return fresh;
}

/// What came to the level: it stands behind what was there.
class Arrivals {
 public:
  explicit Arrivals(EditSession& session)
      : session_(session),
        nodesBefore_(session.level().nodes().count()),
        notesBefore_(session.level().annotations().count()) {}

  /// Looks at the level after the edit, which took away so many nodes that were there.
  void find(unsigned int nodesGone = 0) {
    const orvlib::CompoundObject& level = session_.level();
    nodes_ = lastOf<orvlib::NodeListObject, NodeRef>(level.nodes(), nodesBefore_ - nodesGone);
    notes_ = lastOf<orvlib::AnnotationListObject, orvlib::AnnotationRef>(level.annotations(),
                                                                         notesBefore_);
  }

  bool isEmpty() const { return nodes_.empty() && notes_.empty(); }
  bool fit(const Arrangement& arrangement) const {
    return nodes_.size() == arrangement.nodes.size() && notes_.size() == arrangement.notes.size();
  }
  const NodeRefs& nodes() const { return nodes_; }
  const NoteRefs& notes() const { return notes_; }

  /// Puts all where they stand, shifted.
  bool put(const Arrangement& arrangement, const QPointF& offset) {
    bool done = true;
    for (std::size_t i = 0; i < nodes_.size(); ++i) {
      done &= setPosition(session_, *nodes_[i], arrangement.nodes[i] + offset);
    }
    for (std::size_t i = 0; i < notes_.size(); ++i) {
      done &= setNoteValue(session_, *notes_[i], placement::kPosition,
                           placement::toText(arrangement.notes[i] + offset));
    }
    return done;
  }

 private:
  EditSession& session_;
  unsigned int nodesBefore_;
  unsigned int notesBefore_;
  NodeRefs nodes_;
  NoteRefs notes_;
};

/// The lists that a request names live as long.
struct Selected {
  explicit Selected(const EditSession& session)
      : nodes(selectedNodeList(session.scene())),
        annotations(selectedAnnotationList(session.scene())),
        request{session.levelHandle(), nodes.get(), annotations.get()} {}

  ORV_v1::AddRefWrapper<ORV_v1::NodeList> nodes;
  ORV_v1::AddRefWrapper<ORV_v1::AnnotationList> annotations;
  orvUI_v1::EditSelection request;
};

/// The lists of a level's nodes and annotations of those names; nothing when one is gone.
bool findNamed(orvlib::CompoundObject& level, const LastCopy& copy, ORV_v1::NodeList& nodes,
               ORV_v1::AnnotationList& annotations) {
  for (const std::string& name : copy.nodes) {
    NodeObject* node = level.nodes().find(name);
    if (!node) return false;
    nodes.add(EditSession::handle(*node));
  }
  for (const std::string& name : copy.notes) {
    auto* note = level.annotations().find(name);
    if (!note) return false;
    annotations.add(ORV_v1::AddRefWrapper<ORV_v1::Annotation>(note));
  }
  return true;
}

/// Who keeps the lines has the copy of a duplicate as the last one: the user's is told again, as
/// far as it is still there. What is on the clipboard stays.
void tellAgain(EditSession& session, const LastCopy& copy) {
  const orvlib::ContainerObject& container = session.container();
  orvlib::CompoundObject* level =
      container.containerName() == copy.container ? container.findCompound(copy.level) : nullptr;
  if (!level) return;
  const auto nodes = ORV_v1::NodeList::createNew(level);
  const auto annotations = ORV_v1::AnnotationList::createNew();
  if (!findNamed(*level, copy, *nodes, *annotations)) return;
  const orvlib::PrivateClipboard clipboard;
  session.hook().copySelection(
      {CommandHook::CompoundHandle(level), nodes.get(), annotations.get()});
}

QRectF selectedBounds(const LevelScene& scene) {
  QRectF bounds;
  for (const BoxItem* box : scene.selectedBoxes()) bounds |= box->bounds;
  for (const NoteItem* note : scene.selectedNotes()) bounds |= note->bounds;
  return bounds;
}

/// How what came out of a compound stood in it, as its level was shown, around a point.
Arrangement arrangementAround(const QPointF& middle, const LevelScene& inside,
                              const Arrivals& arrivals) {
  QRectF bounds;
  Arrangement arrangement;
  for (const NodeRef& node : arrivals.nodes()) {
    const BoxItem* box = inside.find(node.get());
    bounds |= box->bounds;
    arrangement.nodes.push_back(box->bounds.topLeft());
  }
  for (const auto& note : arrivals.notes()) {
    const NoteItem* item = inside.find(note.get());
    bounds |= item->bounds;
    arrangement.notes.push_back(item->bounds.topLeft());
  }
  const QPointF offset = QPointF((middle - bounds.center()).toPoint());
  for (QPointF& at : arrangement.nodes) at += offset;
  for (QPointF& at : arrangement.notes) at += offset;
  return arrangement;
}

/// False when the compound stays.
bool explodeOne(EditSession& session, NodeObject& compound, const QPointF& middle,
                std::vector<NodeRef>& all, EditStep& step) {
  LevelScene inside(session.scene().theme());
  inside.show(&compound);
  Arrivals arrivals(session);
  const auto list = ORV_v1::NodeList::createNew(session.scene().level());
  list->add(EditSession::handle(compound));
  ORV_v1::NodeList* raw = list.get();
  session.hook().explodeCompounds(session.levelHandle(), raw);
  if (compound.parent() == &session.level()) return false;
  arrivals.find(1);
  step.require(arrivals.put(arrangementAround(middle, inside, arrivals), {}));
  all.insert(all.end(), arrivals.nodes().begin(), arrivals.nodes().end());
  return true;
}

}  // namespace

void copySelection(EditSession& session) {
  const Selected selected(session);
  if (!session.hook().copySelection(selected.request)) return;
  LastCopy::keep(LastCopy::of(session.scene()));
}

void cutSelection(EditSession& session) {
  const Selected selected(session);
  LastCopy copy = LastCopy::of(session.scene());
  EditStep step(session, QStringLiteral("Cut"));
  if (!step.require(session.hook().cutSelection(selected.request))) return;
  LastCopy::keep(std::move(copy));
}

std::vector<NodeRef> paste(EditSession& session, const QPointF& at) {
  LastCopy* copied = LastCopy::find();
  if (copied && std::exchange(copied->covered, false)) tellAgain(session, *copied);
  Arrivals arrivals(session);
  EditStep step(session, QStringLiteral("Paste"));
  const bool pasted = session.hook().pasteClipboard({session.levelHandle(), false});
  arrivals.find();
  if (!step.require(pasted && !arrivals.isEmpty())) {
    step.setReason(QStringLiteral("Paste: there is nothing on the clipboard that fits here"));
    return {};
  }
  const Arrangement arrangement =
      copied && arrivals.fit(copied->arrangement)
          ? copied->arrangement
          : arrangementOf(arrivals.nodes(), arrivals.notes(), session.scene().theme());
  step.require(arrivals.put(arrangement, at - arrangement.corner()));
  return arrivals.nodes();
}

/// By a clipboard, as there is no other road that keeps connections among the copies.
std::vector<NodeRef> duplicateSelection(EditSession& session) {
  if (LastCopy* copied = LastCopy::find()) copied->covered = true;
  const orvlib::PrivateClipboard clipboard;
  const Selected selected(session);
  const Arrangement arrangement = arrangementOfSelection(session.scene());
  Arrivals arrivals(session);
  EditStep step(session, QStringLiteral("Duplicate"));
  const bool made = session.hook().copySelection(selected.request) &&
                    session.hook().pasteClipboard({session.levelHandle(), true});
  if (!step.require(made)) return {};
  arrivals.find();
  if (step.require(arrivals.fit(arrangement))) step.require(arrivals.put(arrangement, kBeside));
  return arrivals.nodes();
}

/// Its middle is where that of what it holds was.
NodeObject* group(EditSession& session) {
  const Selected selected(session);
  const QPointF middle = selectedBounds(session.scene()).center();
  EditStep step(session, QStringLiteral("Group"));
  CommandHook::CompoundHandle made;
  session.hook().createCompound("group", selected.request, made);
  if (!step.require(!!made)) return nullptr;
  NodeObject* node = EditSession::object(made->getAsNode());
  const QSizeF size = boxSizeOf(*node, session.scene().theme());
  const QPointF corner = middle - QPointF(size.width(), size.height()) / 2;
  step.require(setPosition(session, *node, corner));
  return node;
}

std::vector<NodeRef> explode(EditSession& session) {
  std::vector<std::pair<NodeRef, QPointF>> compounds;
  for (const BoxItem* box : session.scene().selectedBoxes()) {
    if (box->node->compound()) compounds.emplace_back(box->node, box->bounds.center());
  }
  std::vector<NodeRef> all;
  if (compounds.empty()) return all;
  std::size_t refused = 0;
  const QString why = QStringLiteral("Locked and referenced compounds cannot be exploded");
  {
    EditStep step(session, QStringLiteral("Explode"));
    for (const auto& [compound, middle] : compounds) {
      if (!explodeOne(session, *compound, middle, all, step)) ++refused;
    }
    if (refused == compounds.size()) step.setReason(why);
  }
  if (refused > 0) session.tell(why);
  return all;
}

}  // namespace orvuilib::edits
