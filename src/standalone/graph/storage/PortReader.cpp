// What a stored text says of ports and of connections.

#include <charconv>

#include "standalone/graph/edits/WireRules.h"
#include "standalone/graph/model/NameRules.h"
#include "standalone/graph/storage/GraphReader.h"
#include "standalone/graph/storage/StoredFormat.h"
#include "standalone/graph/types/ValueText.h"

namespace orvlib {
namespace {

std::string_view topName(std::string_view path) { return path.substr(0, path.find('.')); }

std::optional<PortDirection> readDirection(std::string_view word) {
  if (word == "in") return PortDirection::Input;
  if (word == "out") return PortDirection::Output;
  return std::nullopt;
}

std::string whyNotConnected(const PortObject& source, const PortObject& target) {
  if (source.isInput()) return "the source takes values";
  if (!target.isInput()) return "the target gives values";
  if (!canCarry(source, target)) {
    return "a value of type " + inQuotes(source.valueType().name) + " is none of type " +
           inQuotes(target.valueType().name);
  }
  return "the target is connected already";
}

}  // namespace

GraphReader::Named GraphReader::portOf(NodeObject& node, std::string_view path) {
  if (hasLost(node, topName(path))) return {nullptr, true};
  // An input/output node has no ports of its own.
  const bool shows = !node.hasOwnPorts() && !node.compound();
  return {shows ? nullptr : node.portAt(path), false};
}

GraphReader::Named GraphReader::subjectPort(std::string_view path) {
  if (!path.starts_with('.')) return portOf(*node_, path);
  path.remove_prefix(1);
  if (hasLost(*node_, topName(path))) return {nullptr, true};
  PortObject* outer = node_->port(topName(path));
  PortObject* inner = outer ? outer->twin() : nullptr;
  const auto dot = path.find('.');
  if (inner && dot != path.npos) inner = inner->descendant(path.substr(dot + 1));
  return {inner, false};
}

GraphReader::Named GraphReader::wireEnd(std::string_view path) {
  const auto dot = path.find('.');
  if (dot == path.npos) return {nullptr, false};
  if (dot == 0) {
    NodeObject* former = std::exchange(node_, levels_.back().get());
    const Named own = subjectPort(path);
    node_ = former;
    return own;
  }
  NodeObject* node = level().nodes().find(path.substr(0, dot));
  return node ? portOf(*node, path.substr(dot + 1)) : Named{nullptr, false};
}

bool GraphReader::hasLost(const NodeObject& node, std::string_view port) {
  if (changed_.empty()) return false;
  const auto entry = changed_.find(&node);
  if (entry == changed_.end() || !entry->second.definition->hasLost(port)) return false;
  kept_.insert(entry->second.ordinal);
  return true;
}

bool GraphReader::notFound(const Named& named, std::string_view path) {
  return named.lost || fail("there is no port " + inQuotes(path));
}

/// The port whose inner face the path names, when its node was made by a definition that gives it
/// no such face, though it might have given it one at another time. Else null.
PortObject* GraphReader::portWithInnerLines(std::string_view path) const {
  if (!path.starts_with('.') || node_ == levels_.back().get()) return nullptr;
  PortObject* port = node_->port(topName(path.substr(1)));
  const bool stated = port && (port->description() || port->twin());
  return stated ? port : nullptr;
}

/// The current line, for a port of `portWithInnerLines`.
bool GraphReader::keepInnerLine(PortObject& port) {
  if (node_->nodeKind() != NodeKind::Placeholder) {
    kept_.insert(ordinal_ - 1);
    return true;
  }
  const bool metadata = words()[0] == "watch-metadata";
  std::string line(words()[0]);
  std::string key = "watch";
  addWord(key, words()[1]);
  if (metadata) {
    if (!innerLines_.contains(key)) return fail(inQuotes(words()[1]) + " is not watched");
    if (words()[2].empty()) return fail("the key of the metadata is empty");
    key.insert(0, "metadata of ");
    addWord(key, words()[2]);
  }
  if (!innerLines_.insert(std::move(key)).second) {
    return fail(metadata ? "the metadata " + inQuotes(words()[2]) + " comes twice"
                         : inQuotes(words()[1]) + " is watched already");
  }
  for (std::size_t i = 1; i < words().size(); ++i) addWord(line, words()[i]);
  Mutator::addInnerLine(port, std::move(line));
  return true;
}

bool GraphReader::readPort() {
  const auto direction = readDirection(words()[1]);
  if (!direction) return fail(inQuotes(words()[1]) + " is neither in nor out");
  const std::string_view name = words()[2];
  if (cleanName(name) != name) return fail(inQuotes(name) + " is no name");
  const TypeRef type = stated_.findType(words()[3]);
  if (type == nullptr) return fail("the type " + inQuotes(words()[3]) + " is not stated");
  const bool instance = subject_ == kNode && node_->compound();
  if (instance) return fail("the ports of " + inQuotes(node_->name()) + " are its definition's");
  if (hasLost(*node_, name)) return true;
  if (node_->port(name)) return fail("a second port has the name " + inQuotes(name));
  const PortRef port = node_->compound() ? factory_.makeCompoundPort(*direction, name, type)
                                         : factory_.makePort(*direction, name, type);
  Mutator::insertPort(*node_, *port, node_->list(*direction).count());
  return true;
}

bool GraphReader::readOrder() {
  const auto direction = readDirection(words()[1]);
  if (!direction) return fail(inQuotes(words()[1]) + " is neither in nor out");
  PortListObject& list = node_->list(*direction);
  for (std::size_t i = 2; i < words().size(); ++i) {
    const Named named = portOf(*node_, words()[i]);
    if (named.lost) return true;
    const auto place = static_cast<unsigned int>(i - 2);
    // Those before it are in their places.
    if (!named.port || named.port->above() || named.port->direction() != *direction ||
        list.indexOf(named.port) < place) {
      return fail("there is no further port " + inQuotes(words()[i]));
    }
    Mutator::movePort(*named.port, place);
  }
  return true;
}

PortObject* GraphReader::ownPort(std::string_view name, PortDirection direction) {
  PortObject* port = levels_.back()->port(name);
  return port && port->direction() == direction ? port : nullptr;
}

bool GraphReader::readPair() {
  PortObject* input = ownPort(words()[1], PortDirection::Input);
  PortObject* output = ownPort(words()[2], PortDirection::Output);
  if (!input) return fail("there is no input " + inQuotes(words()[1]));
  if (!output) return fail("there is no output " + inQuotes(words()[2]));
  if (input->statePartner()) return fail(inQuotes(words()[1]) + " is paired already");
  if (output->statePartner()) return fail(inQuotes(words()[2]) + " is paired already");
  Mutator::pairState(*input, *output);
  return true;
}

bool GraphReader::readShow() {
  const bool input = node_->nodeKind() == NodeKind::Input;
  PortObject* port = ownPort(words()[1], input ? PortDirection::Input : PortDirection::Output);
  if (!port) return fail("the compound has no such port " + inQuotes(words()[1]) + " to show");
  if (port->ioNode()) return fail("the port " + inQuotes(words()[1]) + " is shown already");
  Mutator::setIoNode(*port, node_, (input ? node_->outputList() : node_->inputList()).count());
  return true;
}

bool GraphReader::readFlags() {
  const Named named = subjectPort(words()[1]);
  if (!named.port) return notFound(named, words()[1]);
  std::uint32_t flags = 0;
  for (std::size_t i = 2; i < words().size(); ++i) {
    const std::string_view word = words()[i];
    std::uint32_t bits = 0;
    if (word == "hidden") {
      bits = ORV_v1::kPortHidden;
    } else if (word == "fan-in") {
      bits = ORV_v1::kPortFanIn;
    } else {
      const auto read = std::from_chars(word.data(), word.data() + word.size(), bits);
      const bool whole = read.ec == std::errc() && read.ptr == word.data() + word.size();
      if (!whole || bits == 0) return fail(inQuotes(word) + " is no flag");
    }
    if (flags & bits) return fail("the flag " + inQuotes(word) + " comes twice");
    flags |= bits;
  }
  const bool fanInChanges = ((named.port->flags() ^ flags) & ORV_v1::kPortFanIn) != 0;
  if (fanInChanges && !mayChangeFanIn(*named.port)) {
    return fail("the port " + inQuotes(words()[1]) + " has members or connections already");
  }
  Mutator::setFlags(*named.port, flags);
  return true;
}

bool GraphReader::readMember() {
  const Named named = subjectPort(words()[1]);
  if (!named.port) return notFound(named, words()[1]);
  PortObject& fanIn = *named.port;
  if (fanIn.isInner() && node_ != levels_.back().get()) {
    return fail("the members of " + inQuotes(words()[1]) + " are its definition's");
  }
  const std::string_view name = words()[2];
  if (cleanName(name) != name) return fail(inQuotes(name) + " is no name");
  const TypeRef type = node_->core().elementType(fanIn.valueType());
  if (!fanIn.isFanInPort() || type == nullptr) {
    return fail("the port " + inQuotes(words()[1]) + " takes no members");
  }
  if (fanIn.childList()->find(name)) return fail("a second member has the name " + inQuotes(name));
  const PortRef member = factory_.makeMember(name, type);
  Mutator::insertMember(fanIn, *member, fanIn.childList()->count());
  return true;
}

bool GraphReader::readValue() {
  const Named named = subjectPort(words()[1]);
  if (!named.port) return notFound(named, words()[1]);
  PortObject& port = *named.port;
  if (port.above() || port.isInner() || !port.isSettable()) {
    return fail("the port " + inQuotes(words()[1]) + " takes no value");
  }
  if (port.ownValue()) return fail("the value of " + inQuotes(words()[1]) + " comes twice");
  const std::vector<std::string> texts(words().begin() + 2, words().end());
  ParsedValue parsed = parseValue(port.valueType(), texts);
  if (!parsed.value) return fail("value of " + inQuotes(words()[1]) + ": " + parsed.reason);
  std::unique_ptr<const Value> value = std::make_unique<Value>(std::move(*parsed.value));
  Mutator::exchangeValue(port, value);
  return true;
}

bool GraphReader::readPortMetadata() {
  const Named named = subjectPort(words()[1]);
  if (!named.port) return notFound(named, words()[1]);
  return addMetadata(*named.port, 2);
}

bool GraphReader::readWire() {
  subject_ = kNothing;
  const Named source = wireEnd(words()[1]);
  if (!source.port && !source.lost) return notFound(source, words()[1]);
  const Named target = wireEnd(words()[2]);
  if (!target.port && !target.lost) return notFound(target, words()[2]);
  return source.lost || target.lost || connect(*source.port, *target.port);
}

bool GraphReader::connect(PortObject& source, PortObject& target) {
  const std::string wire = "from " + inQuotes(words()[1]) + " to " + inQuotes(words()[2]);
  if (!canConnect(source, target)) {
    return fail("no connection leads " + wire + ": " + whyNotConnected(source, target));
  }
  if (!target.node()->core().orderWire(*source.vertex(), *target.vertex())) {
    return fail("the connection " + wire + " closes a cycle");
  }
  Mutator::connect(source, target, {source.peers().count(), target.peers().count()});
  return true;
}

bool GraphReader::readIncoming() {
  subject_ = kNothing;
  const Named target = wireEnd(words()[1]);
  if (!target.port) return notFound(target, words()[1]);
  if (!target.port->isInput()) return fail("the port " + inQuotes(words()[1]) + " gives values");
  if (!words()[2].starts_with('/')) return fail(inQuotes(words()[2]) + " is no path of a port");
  incoming_->push_back({PortRef(target.port), std::string(words()[2])});
  return true;
}

}  // namespace orvlib
