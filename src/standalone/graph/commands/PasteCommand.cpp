#include "platform/ORV_1_0/PasteCommand.h"

#include "standalone/graph/clipboard/Clipboard.h"
#include "standalone/graph/commands/BroughtTypes.h"
#include "standalone/graph/commands/LevelLink.h"
#include "standalone/graph/edits/WireRules.h"
#include "standalone/graph/edits/Wiring.h"

namespace ORV_v1 {
namespace {

using namespace orvlib;

FaultPoint kSetParent("PasteCommand setParentCompound");
FaultPoint kDoit("PasteCommand doit");
FaultPoint kRedo("PasteCommand redo");
FaultPoint kUndo("PasteCommand undo");

template <class Item, class List>
std::vector<Item*> copyOf(const List& list) {
  return std::vector<Item*>(list.items().begin(), list.items().end());
}

bool runMoveNodes(Transaction& edits, const CompoundObject& from, CompoundObject& level) {
  for (NodeObject* node : copyOf<NodeObject>(from.nodes())) {
    std::string name = level.nodes().uniqueName(node->name());
    const unsigned int end = level.nodes().count();
    if (!edits.run(MoveNode{NodeRef(node), CompoundRef(&level), end, std::move(name)})) {
      return false;
    }
  }
  return true;
}

bool runMoveAnnotations(Transaction& edits, CompoundObject& from, CompoundObject& level) {
  for (AnnotationObject* note : copyOf<AnnotationObject>(from.annotations())) {
    const AnnotationRef moved(note);
    if (!edits.run(RemoveAnnotation{{CompoundRef(&from), moved, 0}})) return false;
    std::string name = level.annotations().uniqueName(note->name());
    if (name != note->name() && !edits.run(RenameAnnotation{moved, std::move(name)})) return false;
    const unsigned int end = level.annotations().count();
    if (!edits.run(InsertAnnotation{{CompoundRef(&level), moved, end}})) return false;
  }
  return true;
}

/// The port of that path on the face that is at this level; null when there is none.
PortObject* sourceAt(const CompoundObject& level, const std::string& path) {
  for (const auto mode : {Container::kSearchOuter, Container::kSearchInner}) {
    const ContainerObject& graph = *level.node()->container();
    PortObject* port = graph.findPort(path, Container::kSearchOutput, mode);
    if (port && wireLevel(*port) == &level) return port;
  }
  return nullptr;
}

/// A member of a fan-in port that stays without a connection goes.
bool runDropMember(Transaction& edits, PortObject& target) {
  return target.kind() != PortKind::Member || target.hasPeers() || runRemovePort(edits, target);
}

}  // namespace

struct PasteCommand::Rep {
  LevelLink link;
  bool duplicatesInputs = false;

  /// Keeps what a paste that is undone goes back to.
  Selection selection;
  BroughtTypes types;
  RecordedCommand command;

  /// The source of each connection from outside; null for one that is not to be had.
  std::vector<PortObject*> findSources(const CompoundObject& level) const {
    std::vector<PortObject*> sources;
    for (const IncomingWire& wire : selection.incoming) {
      sources.push_back(duplicatesInputs ? sourceAt(level, wire.source) : nullptr);
    }
    return sources;
  }

  bool runConnectInputs(Transaction& edits, const std::vector<PortObject*>& sources) const {
    for (std::size_t i = 0; i < sources.size(); ++i) {
      const PortRef& target = selection.incoming[i].target;
      if (sources[i] && canConnect(*sources[i], *target)) {
        if (!edits.run(Connect{{PortRef(sources[i]), target}})) return false;
      } else if (!runDropMember(edits, *target)) {
        return false;
      }
    }
    return true;
  }

  bool run(Transaction& edits) {
    CompoundObject* level = link.level();
    if (!level) return false;
    selection = Selection();
    if (!types.read(Clipboard::text(), level->node()->core(), selection)) return false;
    CompoundObject& carrier = *selection.carrier->compound();
    if (!level->hasRoomForContentOf(carrier)) return false;
    types.enter(level->node()->core());
    // Once the nodes are there, one of them may have the path of a source that has gone.
    const std::vector<PortObject*> sources = findSources(*level);
    return runMoveNodes(edits, carrier, *level) && runMoveAnnotations(edits, carrier, *level) &&
           runConnectInputs(edits, sources);
  }

  /// What is pasted again needs its types.
  void bringTypes() const {
    ContainerObject* graph = link.container();
    if (graph && command.isBuilt()) types.enter(graph->core());
  }

  /// The types go along with what was pasted.
  void dropTypesIfUndone() const {
    ContainerObject* graph = link.container();
    if (graph && !command.isDone()) types.leave(graph->core());
  }
};

PasteCommand::PasteCommand() : rep_(new Rep) {}
PasteCommand::~PasteCommand() { delete rep_; }

bool PasteCommand::setParentCompound(Container* container, const char* path) {
  if (kSetParent.refuses() || rep_->command.isBuilt()) return false;
  return rep_->link.bind(container, path);
}

void PasteCommand::duplicateSourceInputConnections(bool duplicate) {
  rep_->duplicatesInputs = duplicate;
}

bool PasteCommand::doit() { return !kDoit.refuses() && redo(); }

bool PasteCommand::redo() {
  rep_->bringTypes();
  const bool done = rep_->command.redo(kRedo, rep_->link.container(),
                                       [this](Transaction& edits) { return rep_->run(edits); });
  rep_->dropTypesIfUndone();
  return done;
}

bool PasteCommand::undo() {
  const bool undone = rep_->command.undo(kUndo, rep_->link.container());
  rep_->dropTypesIfUndone();
  return undone;
}

}  // namespace ORV_v1
