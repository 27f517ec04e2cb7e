#include "standalone/graph/library/PortReader.h"

#include <unordered_set>

#include "standalone/graph/library/ValueReader.h"

namespace orvlib {
namespace {

TypeHandle readType(const Fields& fields, const TypeTable& types) {
  TypeHandle type = types.find(fields.text("type"));
  if (!type) fields.fail("type", "the runtime has no port type '" + fields.text("type") + "'");
  return type;
}

bool readFanIn(const Fields& fields, const ValueType& type) {
  const bool fanIn = fields.flag("fanIn");
  if (fanIn && !type.isArray()) {
    fields.fail("fanIn", "'fanIn' needs an array type, which '" + type.name + "' is not");
  }
  return fanIn;
}

PortDescription readPort(const YamlNode& node, PortDirection direction, const TypeTable& types) {
  const bool isInput = direction == PortDirection::Input;
  const Fields fields =
      isInput ? Fields(node, "an input", {"name", "type", "default", "fanIn", "description"})
              : Fields(node, "an output", {"name", "type", "description"});
  PortDescription port;
  port.name = fields.identifier("name");
  port.direction = direction;
  port.type = readType(fields, types);
  port.defaultValue = readDefault(fields, *port.type, port.type->defaultValue);
  port.fanIn = readFanIn(fields, *port.type);
  port.description = fields.text("description");
  return port;
}

}  // namespace

std::vector<PortDescription> readPorts(const Fields& fields, const std::string& nodeName,
                                       const TypeTable& types) {
  std::vector<PortDescription> ports;
  std::unordered_set<std::string> names;
  const auto readList = [&](const char* key, PortDirection direction) {
    for (const YamlNode& item : fields.list(key)) {
      ports.push_back(readPort(item, direction, types));
      if (names.insert(ports.back().name).second) continue;
      throw DefinitionError(
          item.position,
          "node '" + nodeName + "' has more than one port named '" + ports.back().name + "'");
    }
  };
  readList("inputs", PortDirection::Input);
  readList("outputs", PortDirection::Output);
  return ports;
}

}  // namespace orvlib
