#include "tests/hook/road/RandomObjects.h"

#include "platform/ORV_1_0/AnnotationList.h"
#include "platform/ORV_1_0/NodeList.h"

using ORV_v1::AddRefWrapper;
using ORV_v1::AnnotationList;
using ORV_v1::NodeList;
using ORV_v1::PortIOType;
using ORV_v1::PortList;

namespace {

/// The ports with all that is below them.
void append(RandomObjects::Ports& ports, const PortList& list) {
  for (const RandomObjects::PortHandle& port : list) {
    ports.push_back(port);
    if (const auto& children = port->children()) append(ports, *children);
  }
}

RandomObjects::Ports facing(const RandomObjects::Ports& ports, PortIOType direction) {
  RandomObjects::Ports kept;
  for (const auto& port : ports) {
    if (port->getPortIOType() == direction) kept.push_back(port);
  }
  return kept;
}

/// The ports that connections of the level join.
RandomObjects::Ports portsOf(const RandomObjects::CompoundHandle& level) {
  RandomObjects::Ports ports;
  for (const auto& node : level->getChildNodes()) {
    append(ports, node->outputs());
    append(ports, node->inputs());
  }
  append(ports, level->compoundInputs());
  append(ports, level->compoundOutputs());
  return ports;
}

}  // namespace

std::vector<RandomObjects::CompoundHandle> RandomObjects::compounds() const {
  std::vector<CompoundHandle> all = {graph_.getTopNode()->asCompound()};
  for (std::size_t i = 0; i < all.size(); ++i) {
    const CompoundHandle level = all[i];
    for (const NodeHandle& node : level->getChildNodes()) {
      if (node->isCompound()) all.push_back(node->asCompound());
    }
  }
  return all;
}

std::vector<RandomObjects::NodeHandle> RandomObjects::nodes() const {
  std::vector<NodeHandle> all;
  for (const CompoundHandle& level : compounds()) {
    for (const NodeHandle& node : level->getChildNodes()) all.push_back(node);
  }
  return all;
}

RandomObjects::CompoundHandle RandomObjects::compound() {
  std::vector<CompoundHandle> all = compounds();
  if (below(8) != 0) std::erase_if(all, [](const auto& level) { return !level->isEditable(); });
  return all.empty() ? graph_.getTopNode()->asCompound() : one(all);
}

RandomObjects::NodeHandle RandomObjects::node() { return one(nodes()); }

RandomObjects::NodeHandle RandomObjects::nodeOf(const CompoundHandle& compound) {
  const unsigned count = compound->getChildNodes().size();
  return count == 0 ? NodeHandle() : compound->getChildNodes()[below(count)];
}

RandomObjects::NodeHandle RandomObjects::compoundNode() { return compound()->getAsNode(); }

RandomObjects::PortHandle RandomObjects::innerFace() {
  Ports faces;
  for (const CompoundHandle& level : compounds()) {
    for (const PortHandle& port : level->compoundInputs()) faces.push_back(port);
    for (const PortHandle& port : level->compoundOutputs()) faces.push_back(port);
  }
  return one(faces);
}

RandomObjects::PortHandle RandomObjects::compoundPort() {
  if (below(2)) return innerFace();
  Ports faces;
  for (const CompoundHandle& level : compounds()) {
    for (const PortHandle& port : level->getAsNode()->inputs()) faces.push_back(port);
    for (const PortHandle& port : level->getAsNode()->outputs()) faces.push_back(port);
  }
  return one(faces);
}

RandomObjects::PortHandle RandomObjects::port() { return one(portsOf(compound())); }

RandomObjects::Ports RandomObjects::ports() const {
  Ports all;
  for (const CompoundHandle& level : compounds()) {
    const Ports more = portsOf(level);
    all.insert(all.end(), more.begin(), more.end());
  }
  return all;
}

RandomObjects::PortHandle RandomObjects::source(const CompoundHandle& level) {
  return one(facing(portsOf(level), PortIOType::kOutput));
}

RandomObjects::PortHandle RandomObjects::destination(const CompoundHandle& level) {
  return one(facing(portsOf(level), PortIOType::kInput));
}

RandomObjects::PortHandle RandomObjects::connectedDestination(const CompoundHandle& level) {
  Ports connected = facing(portsOf(level), PortIOType::kInput);
  std::erase_if(connected, [](const PortHandle& port) { return !port->isConnected(); });
  return one(connected);
}

RandomObjects::PortHandle RandomObjects::fanInPort() {
  Ports found;
  for (const NodeHandle& node : nodes()) {
    for (const PortHandle& port : node->inputs()) {
      if (port->isFanIn()) found.push_back(port);
    }
  }
  return one(found);
}

AddRefWrapper<NodeList> RandomObjects::someNodes(const CompoundHandle& level, bool compounds) {
  AddRefWrapper<NodeList> list = NodeList::createNew(level.get());
  for (const NodeHandle& node : level->getChildNodes()) {
    if (list->size() < 4 && below(3) == 0 && (!compounds || node->isCompound())) list->add(node);
  }
  return list;
}

AddRefWrapper<AnnotationList> RandomObjects::someAnnotations(const CompoundHandle& level) {
  AddRefWrapper<AnnotationList> list = AnnotationList::createNew();
  for (const auto& annotation : level->getAnnotations()) {
    if (list->size() < 3 && below(3) == 0) list->add(annotation);
  }
  return list;
}

std::string RandomObjects::annotation(const CompoundHandle& level) {
  std::vector<std::string> names;
  for (const auto& one : level->getAnnotations()) names.emplace_back(one->getName());
  return names.empty() || below(10) == 0 ? name().toStdString() : one(names);
}

QString RandomObjects::name() {
  if (below(3) == 0) return any();
  if (below(3) == 0) {
    if (const NodeHandle known = node()) return QString::fromUtf8(known->getName());
  }
  return QStringLiteral("n%1").arg(number_++);
}

QString RandomObjects::type() {
  if (below(15) == 0) return brief();
  return one<QString>({"float", "int", "bool", "string", "color3", "vector3", "matrix4",
                       "array<float>", "array<color3>"});
}

QString RandomObjects::nodeType() {
  if (below(20) == 0) return brief();
  return one<QString>({"core::math::add", "core::math::negate", "core::color::mix3",
                       "core::array::build", "core::string::join", "core::color::combine3",
                       "core::shared", "core::soft"});
}

QString RandomObjects::key() { return below(2) ? one<QString>({"k", "m", "position"}) : any(); }

QList<QString> RandomObjects::values() {
  if (below(6) == 0) return {any()};
  return one<QList<QString>>({{"1"},
                              {"2.5"},
                              {"true"},
                              {"1", "2", "3"},
                              {"1", "0.5", "0.25", "4"},
                              {"x y"},
                              {},
                              {"", ","}});
}
