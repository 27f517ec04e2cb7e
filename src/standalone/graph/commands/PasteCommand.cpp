#include "platform/ORV_1_0/PasteCommand.h"

#include "standalone/graph/clipboard/Clipboard.h"
#include "standalone/graph/commands/LevelLink.h"
#include "standalone/graph/edits/WireRules.h"
#include "standalone/graph/edits/Wiring.h"
#include "standalone/graph/storage/GraphText.h"

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
  RecordedCommand command;

  bool runConnectInputs(Transaction& edits, const CompoundObject& level) const {
    for (const IncomingWire& wire : selection.incoming) {
      PortObject* source = duplicatesInputs ? sourceAt(level, wire.source) : nullptr;
      if (source && canConnect(*source, *wire.target)) {
        if (!edits.run(Connect{{PortRef(source), wire.target}})) return false;
      } else if (!runDropMember(edits, *wire.target)) {
        return false;
      }
    }
    return true;
  }

  bool run(Transaction& edits) {
    CompoundObject* level = link.level();
    if (!level) return false;
    selection = Selection();
    if (readSelection(Clipboard::text(), level->node()->core(), selection)) return false;
    CompoundObject& carrier = *selection.carrier->compound();
    if (!level->hasRoomForContentOf(carrier)) return false;
    return runMoveNodes(edits, carrier, *level) && runMoveAnnotations(edits, carrier, *level) &&
           runConnectInputs(edits, *level);
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
  return rep_->command.redo(kRedo, rep_->link.container(),
                            [this](Transaction& edits) { return rep_->run(edits); });
}

bool PasteCommand::undo() { return rep_->command.undo(kUndo, rep_->link.container()); }

}  // namespace ORV_v1
