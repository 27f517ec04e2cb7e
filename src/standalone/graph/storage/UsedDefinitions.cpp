#include "standalone/graph/storage/UsedDefinitions.h"

#include <algorithm>

#include "standalone/graph/model/GraphCore.h"
#include "standalone/graph/storage/LineWords.h"
#include "standalone/graph/types/ValueText.h"

namespace orvlib {
namespace {

void appendType(std::string& text, const ValueType& type) {
  text += "type";
  addWord(text, type.name);
  if (type.isArray()) {
    text += " array";
    addWord(text, type.element->name);
  } else {
    addWord(text, toText(type.scalar));
    for (const std::string& component : type.components) addWord(text, component);
  }
  text += '\n';
}

}  // namespace

void UsedDefinitions::addType(GraphCore& core, const TypeRef& handle) {
  if (handle == nullptr) return;
  const ValueType& type = *ORV_v1::GraphAccess::typeOf(*handle);
  if (!knownTypes_.insert(&type).second) return;
  (type.isArray() ? arrays_ : scalarsAndVectors_).try_emplace(type.name, &type);
  // What its children have must be known where it is read, too.
  addType(core, type.isArray() ? core.elementType(type) : core.componentType(type));
}

std::size_t UsedDefinitions::add(const NodeObject& node) {
  const NodeDescription* description = node.description();
  if (!description) return number(node.typeName(), portsOf(node));
  std::size_t& known = numbers_[description];
  if (known == 0) known = number(description->name, portsOf(node));
  return known;
}

void UsedDefinitions::addPort(GraphCore& core, std::string& ports, const PortObject& port) {
  addType(core, port.type());
  ports += directionWord(port.direction());
  addWord(ports, port.name());
  addWord(ports, port.valueType().name);
  const PortDescription* stated = port.description();
  const bool fanIn = stated ? stated->fanIn : (port.flags() & ORV_v1::kPortFanIn) != 0;
  ports += fanIn ? " fan-in\n" : "\n";
}

std::string UsedDefinitions::portsOf(const NodeObject& node) {
  std::vector<const PortObject*> stated;
  for (const PortListObject* list : {&node.inputList(), &node.outputList()}) {
    const auto first = static_cast<std::ptrdiff_t>(stated.size());
    for (const PortObject* port : list->items()) {
      if (port->description() || !node.description()) stated.push_back(port);
    }
    // As the definition has them, wherever they stand on this node.
    if (!node.description()) continue;
    std::sort(stated.begin() + first, stated.end(), [](const auto* one, const auto* other) {
      return std::less<>()(one->description(), other->description());
    });
  }
  std::string ports;
  for (const PortObject* port : stated) addPort(node.core(), ports, *port);
  return ports;
}

std::size_t UsedDefinitions::number(const std::string& name, std::string ports) {
  std::vector<std::string>& all = definitions_[name];
  const auto found = std::ranges::find(all, ports);
  const auto index = static_cast<std::size_t>(found - all.begin());
  if (found == all.end()) all.push_back(std::move(ports));
  return index + 1;
}

std::string UsedDefinitions::text() const {
  std::string text;
  for (const auto& [name, type] : scalarsAndVectors_) appendType(text, *type);
  for (const auto& [name, type] : arrays_) appendType(text, *type);
  for (const auto& [name, all] : definitions_) {
    for (std::size_t i = 0; i < all.size(); ++i) {
      text += "definition";
      addWord(text, name);
      if (i > 0) text += ' ' + std::to_string(i + 1);
      text += '\n';
      text += all[i];
    }
  }
  return text;
}

}  // namespace orvlib
