// What a stored text says of the ports of a node.

#include <functional>

#include "standalone/graph/model/GraphCore.h"
#include "standalone/graph/model/WatchPointObject.h"
#include "standalone/graph/storage/GraphWriter.h"
#include "standalone/graph/storage/LineWords.h"
#include "standalone/graph/storage/StoredFormat.h"
#include "standalone/graph/types/ValueText.h"

namespace orvlib {
namespace {

/// The flags of a port that were not set by anybody.
std::uint32_t givenFlags(const PortObject& port) {
  const std::uint32_t fanIn = ORV_v1::kPortFanIn;
  if (port.description()) return port.description()->fanIn ? fanIn : 0;
  const NodeObject* node = port.kind() == PortKind::Outer ? port.node() : nullptr;
  // The definition of a published compound is stated with it.
  return node && node->compound()->isReference() ? port.flags() & fanIn : 0;
}

/// Whether what is inside of it is stored elsewhere.
bool isOfReference(const PortObject& port) {
  const NodeObject* node = port.node();
  return node && node->compound() && node->compound()->isReference();
}

/// Whether the ports of the definition come first, in its order.
bool hasDefinitionOrder(const PortListObject& list) {
  const PortDescription* former = nullptr;
  bool passed = false;
  for (const PortObject* port : list.items()) {
    const PortDescription* stated = port->description();
    if (stated && (passed || (former && std::less<>()(stated, former)))) return false;
    passed = passed || !stated;
    former = stated;
  }
  return true;
}

}  // namespace

void GraphWriter::writeOwnPorts(const NodeObject& node) {
  for (const PortListObject* list : {&node.inputList(), &node.outputList()}) {
    for (const PortObject* port : list->items()) {
      if (port->description()) continue;
      used_.addType(node.core(), port->type());
      begin("port");
      word(directionWord(port->direction()));
      word(port->name());
      word(port->valueType().name);
      end();
    }
  }
  writePortOrder(node.inputList(), PortDirection::Input);
  writePortOrder(node.outputList(), PortDirection::Output);
}

void GraphWriter::writePortOrder(const PortListObject& list, PortDirection direction) {
  if (hasDefinitionOrder(list)) return;
  begin("order");
  word(directionWord(direction));
  for (const PortObject* port : list.items()) word(port->name());
  end();
}

void GraphWriter::writeStatePairs(const NodeObject& node) {
  for (const PortObject* port : node.inputList().items()) {
    const PortObject* partner = port->statePartner();
    if (!partner) continue;
    begin("pair");
    word(port->name());
    word(partner->name());
    end();
  }
}

void GraphWriter::writePortSettings(const NodeObject& node) {
  std::string path;
  for (const PortListObject* list : {&node.inputList(), &node.outputList()}) {
    for (const PortObject* port : list->items()) {
      path = port->name();
      writePort(*port, path);
      for (const std::string& line : port->innerLines()) {
        begin(line);
        end();
      }
      if (!port->twin()) continue;
      path.insert(path.begin(), '.');
      writePort(*port->twin(), path);
    }
  }
}

void GraphWriter::writePort(const PortObject& port, std::string& path) {
  // What both faces share stands with the outer one.
  if (port.kind() == PortKind::Inner) {
    writeMembers(port, path);
  } else {
    writeShared(port, path);
  }
  const bool outside = bare_ && !port.isInner();
  if (port.watchPoint() && !outside) writeWatchPoint(port, path);
  const PortListObject* children = port.madeChildren();
  if (!children) return;
  const std::size_t length = path.size();
  for (const PortObject* child : children->items()) {
    // In what a compound is, there is nothing of its connections.
    if (outside && child->kind() == PortKind::Member) continue;
    path += '.';
    path += child->name();
    writePort(*child, path);
    path.resize(length);
  }
}

void GraphWriter::writeShared(const PortObject& port, const std::string& path) {
  if (port.flags() != givenFlags(port)) writeFlags(port, path);
  writeMembers(port, path);
  if (const Value* value = port.ownValue()) {
    begin("value");
    word(path);
    for (const std::string& text : printValue(*value)) word(text);
    end();
  }
  writeMetadata("port-metadata", path, port.metadata());
}

void GraphWriter::writeMembers(const PortObject& port, const std::string& path) {
  if (!port.isFanInPort() || !port.madeChildren()) return;
  // Those inside belong to what the compound is, those outside to its node.
  if (port.isInner() ? !bare_ && isOfReference(port) : bare_) return;
  for (const PortObject* member : port.madeChildren()->items()) {
    begin("member");
    word(path);
    word(member->name());
    end();
  }
}

void GraphWriter::writeFlags(const PortObject& port, const std::string& path) {
  constexpr std::uint32_t kNamed = ORV_v1::kPortHidden | ORV_v1::kPortFanIn;
  const std::uint32_t flags = port.flags();
  begin("flags");
  word(path);
  if (flags & ORV_v1::kPortHidden) body_ += " hidden";
  if (flags & ORV_v1::kPortFanIn) body_ += " fan-in";
  if (flags & ~kNamed) number(flags & ~kNamed);
  end();
}

void GraphWriter::writeFurtherParameters(const WatchPointSetup& setup) {
  const WatchPointSetup given;
  for (const WatchPointParameter& parameter : watchPointParameters().subspan(kStatedParameters)) {
    std::string value = parameter.get(setup);
    if (value == parameter.get(given)) continue;
    word(parameter.name);
    word(value);
  }
}

void GraphWriter::writeWatchPoint(const PortObject& port, const std::string& path) {
  const WatchPointSetup& setup = port.watchPoint()->setup();
  begin("watch");
  word(path);
  for (const WatchPointParameter& parameter : watchPointParameters().first(kStatedParameters)) {
    word(parameter.get(setup));
  }
  if (!setup.enabled) body_ += " off";
  writeFurtherParameters(setup);
  end();
  writeMetadata("watch-metadata", path, port.watchPoint()->metadata());
}

}  // namespace orvlib
