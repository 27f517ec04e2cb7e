#include "standalone/graph/storage/StatedDefinitions.h"

#include <algorithm>
#include <charconv>

#include "standalone/graph/model/NameRules.h"
#include "standalone/graph/storage/StoredFormat.h"
#include "standalone/graph/types/ValueText.h"

namespace orvlib {

using ORV_v1::GraphAccess;
using Words = std::vector<std::string_view>;

namespace {

bool isAsStated(const PortObject* port, const PortDescription& stated) {
  if (!port || port->direction() != stated.direction) return false;
  const bool fanIn =
      port->description() ? port->description()->fanIn : (port->flags() & ORV_v1::kPortFanIn) != 0;
  return port->valueType().name == stated.type->name && fanIn == stated.fanIn;
}

}  // namespace

void StatedDefinition::compareWith(const NodeObject& node) {
  if (compared_) return;
  compared_ = true;
  for (const PortDescription& port : GraphAccess::describe(*stated).ports) {
    if (!isAsStated(node.port(port.name), port)) lost_.push_back(port.name);
  }
}

bool StatedDefinition::hasLost(std::string_view port) const {
  return std::ranges::find(lost_, port) != lost_.end();
}

std::string StatedDefinitions::read(LineWords& lines) {
  while (lines.next()) {
    const Words& words = lines.words();
    std::string problem;
    if (words[0] == "type") {
      problem = readType(words);
    } else if (words[0] == "definition") {
      problem = readDefinition(words);
    } else if (words[0] == "in" || words[0] == "out") {
      problem = readPort(words);
    } else {
      finishDefinition();
      return {};
    }
    if (!problem.empty()) return problem;
  }
  return lines.problem();
}

StatedDefinition* StatedDefinitions::find(std::string_view name, std::size_t number) {
  const auto entry = definitions_.find(name);
  if (entry == definitions_.end() || number == 0 || number > entry->second.size()) return nullptr;
  return &entry->second[number - 1];
}

TypeRef StatedDefinitions::findType(std::string_view name) const {
  const auto entry = types_.find(name);
  return entry == types_.end() ? TypeRef() : entry->second;
}

std::string StatedDefinitions::readType(const Words& words) {
  finishDefinition();
  if (words.size() < 3) return "a type needs a name and what its values are";
  if (words[1].empty()) return "the name of a type is empty";
  if (types_.contains(words[1])) return "the type " + inQuotes(words[1]) + " is stated twice";
  if (std::string problem = readUnknownType(words); !problem.empty()) return problem;
  types_.emplace(words[1], core_.typeOrStandIn(words[1]));
  return {};
}

std::string StatedDefinitions::readUnknownType(const Words& words) {
  auto type = std::make_shared<ValueType>();
  type->name = type->niceName = words[1];
  if (words[2] == "array") {
    if (words.size() != 4) return "an array needs the type of its elements";
    // The type of a stand-in that takes any texts.
    if (words[3].empty()) return {};
    const TypeRef element = findType(words[3]);
    if (element == nullptr) return "the type " + inQuotes(words[3]) + " is not stated before";
    type->element = GraphAccess::typeOf(*element);
    if (type->element->isArray()) return "an array cannot have arrays as elements";
    type->scalar = type->element->scalar;
  } else {
    const auto scalar = scalarKindFromText(std::string(words[2]));
    if (!scalar) return inQuotes(words[2]) + " is no kind of value";
    type->scalar = *scalar;
    for (std::size_t i = 3; i < words.size(); ++i) {
      if (cleanName(words[i]) != words[i]) return inQuotes(words[i]) + " is no name";
      if (std::ranges::find(type->components, words[i]) != type->components.end()) {
        return "the component " + inQuotes(words[i]) + " comes twice";
      }
      type->components.emplace_back(words[i]);
    }
  }
  type->defaultValue = zeroValue(*type);
  if (core_.findType(words[1]) == nullptr) core_.keepType(type);
  return {};
}

std::string StatedDefinitions::readDefinition(const Words& words) {
  finishDefinition();
  if (words.size() < 2 || words.size() > 3) return "a definition needs a name";
  if (words[1].empty()) return "the name of a definition is empty";
  const auto entry = definitions_.find(words[1]);
  const std::size_t count = entry == definitions_.end() ? 0 : entry->second.size();
  const std::string expected = std::to_string(count + 1);
  const std::string_view number = words.size() == 3 ? words[2] : "1";
  if (number != expected || (words.size() == 3 && count == 0)) {
    return "the definition " + inQuotes(words[1]) + " number " + std::string(number) +
           " is stated, but number " + expected + " is the next";
  }
  open_ = std::make_shared<NodeDescription>();
  open_->name = open_->niceName = words[1];
  return {};
}

std::string StatedDefinitions::readPort(const Words& words) {
  if (!open_) return "a port is stated, but no definition";
  const bool fanIn = words.size() == 4 && words[3] == "fan-in";
  if (words.size() != (fanIn ? 4u : 3u)) return "a port needs a name and a type";
  if (cleanName(words[1]) != words[1]) return inQuotes(words[1]) + " is no name";
  const TypeRef type = findType(words[2]);
  if (type == nullptr) return "the type " + inQuotes(words[2]) + " is not stated";
  for (const PortDescription& port : open_->ports) {
    if (port.name == words[1]) return "the port " + inQuotes(words[1]) + " is stated twice";
  }
  PortDescription port;
  port.name = words[1];
  port.direction = words[0] == "in" ? PortDirection::Input : PortDirection::Output;
  port.type = GraphAccess::typeOf(*type);
  port.defaultValue = port.type->defaultValue;
  port.fanIn = fanIn;
  open_->ports.push_back(std::move(port));
  return {};
}

void StatedDefinitions::finishDefinition() {
  if (!open_) return;
  StatedDefinition definition;
  definition.current = core_.findDefinition(open_->name);
  std::vector<StatedDefinition>& all = definitions_[open_->name];
  definition.stated = GraphAccess::makeNode(std::move(open_));
  all.push_back(std::move(definition));
  open_ = nullptr;
}

}  // namespace orvlib
