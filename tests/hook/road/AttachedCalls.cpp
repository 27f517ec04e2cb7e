// Calls that change what hangs on nodes and ports: metadata, state flags, annotations, watch
// points.

#include "platform/orvUI_1_0/CommandHook.h"
#include "tests/hook/road/Calls.h"

namespace {

using orvUI_v1::CommandHook;

/// A node, or a compound with its node.
struct MetadataTarget {
  int kind;
  RandomObjects::NodeHandle node;
};

MetadataTarget target(Caller& caller) {
  const int kind = static_cast<int>(caller.any.below(3));
  const auto node = kind != 0 ? caller.any.compoundNode() : caller.any.node();
  return {kind, node ? node : caller.any.compoundNode()};
}

/// Now and then locks a compound, or unlocks it.
void setMetaData(Caller& caller) {
  const auto [kind, node] = target(caller);
  if (caller.any.below(10) == 0) {
    const bool lock = caller.any.below(4) == 0;
    return caller.edits().setMetaData(kind, node, "locked", lock ? "true" : "false");
  }
  caller.edits().setMetaData(kind, node, caller.any.key(), caller.any.any());
}

void addMetaData(Caller& caller) {
  const auto [kind, node] = target(caller);
  caller.edits().addMetaData(kind, node, caller.any.key(), caller.any.any());
}

void removeMetaData(Caller& caller) {
  const auto [kind, node] = target(caller);
  const QString value = caller.any.below(3) ? "false" : caller.any.any();
  caller.edits().removeMetaData(kind, node, caller.any.below(2) ? "locked" : caller.any.key(),
                                value);
}

void clearMetaData(Caller& caller) {
  const auto [kind, node] = target(caller);
  caller.edits().clearMetaData(kind, node, caller.any.below(4) ? caller.any.key() : "locked");
}

/// The set of another object, with whatever texts it has got.
void setMetaDataFromString(Caller& caller) {
  const auto [kind, node] = target(caller);
  const auto [otherKind, other] = target(caller);
  caller.edits().setMetaDataFromString(
      kind, node, otherKind != 0 ? other->asCompound()->getMetadata() : other->getMetadata());
}

void setStateFlag(Caller& caller) {
  const auto node = caller.any.node();
  const char flag = caller.any.one<char>({'e', 'f', 'b', 'e', 'f', 'b', '"', '\\', '\n', '\xe9'});
  if (node) caller.edits().setStateFlag(node, flag, caller.any.below(2));
}

void editAnnotation(Caller& caller) {
  const auto level = caller.any.compound();
  if (!caller.mayAnnotate(level)) return;
  const unsigned operation = caller.any.below(CommandHook::kSetAnnotationMetaDataValue + 2);
  const bool adds = operation <= CommandHook::kAddStickyNote;
  const std::string name = adds ? caller.any.name().toStdString() : caller.any.annotation(level);
  const std::string second = caller.any.name().toStdString();
  const std::string third = caller.any.any().toStdString();
  caller.edits().editAnnotation(operation, level, name.c_str(), second.c_str(), third.c_str());
}

void setPortMetaDataValue(Caller& caller) {
  const int kind = static_cast<int>(caller.any.below(3));
  const auto port = kind == 1 ? caller.any.compoundPort() : caller.any.port();
  if (port) {
    caller.edits().setPortMetaDataValue(kind, port, caller.any.key(), caller.any.any());
  }
}

bool isWatched(const RandomObjects::PortHandle& port) { return bool(port->getWatchPoint()); }

/// Mostly of a port that is watched.
void editWatchPoint(Caller& caller) {
  const auto watched =
      caller.any.below(4) != 0 ? caller.any.portThat(isWatched) : RandomObjects::PortHandle();
  const auto port = watched ? watched : caller.any.port();
  if (!port) return;
  const unsigned operation = isWatched(port)
                                 ? caller.any.below(CommandHook::kSetWatchPointMetaData + 2)
                                 : CommandHook::kCreateWatchPoint;
  if (caller.edits().editWatchPoint(operation, port, caller.any.key(), caller.any.any())) {
    ++caller.worked["editWatchPoint " + std::to_string(operation)];
  }
}

constexpr Call kCalls[] = {
    {"setMetaData", setMetaData, 5},
    {"addMetaData", addMetaData, 4},
    {"removeMetaData", removeMetaData, 3},
    {"clearMetaData", clearMetaData, 3},
    {"setMetaDataFromString", setMetaDataFromString, 3},
    {"setStateFlag", setStateFlag, 4},
    {"editAnnotation", editAnnotation, 8},
    {"setPortMetaDataValue", setPortMetaDataValue, 5},
    {"editWatchPoint", editWatchPoint, 9},
};

}  // namespace

std::span<const Call> attachedCalls() { return kCalls; }
