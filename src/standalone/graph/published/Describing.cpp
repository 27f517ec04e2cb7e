#include "standalone/graph/published/Describing.h"

#include "standalone/graph/library/CompoundSet.h"
#include "standalone/graph/storage/GraphText.h"

namespace orvlib {
namespace {

bool isBlank(std::string_view text) { return text.find_first_not_of(" \t\r\n") == text.npos; }

/// The port's metadata "description", or a text that says no more than the name.
std::string describePort(const PortObject& port) {
  const auto* stated = port.metadata().find("description");
  if (stated && !isBlank(stated->front())) return stated->front();
  return std::string(port.isInput() ? "The input '" : "The output '") + port.name() + "'.";
}

PortDescription toDescription(const PortObject& port) {
  PortDescription result;
  result.name = port.name();
  result.direction = port.direction();
  result.type = ORV_v1::GraphAccess::typeOf(*port.type());
  result.defaultValue = port.isInput() ? port.unconnectedValue() : result.type->defaultValue;
  result.fanIn = port.isFanInPort();
  result.description = describePort(port);
  return result;
}

}  // namespace

NodeDescription describeCompound(const CompoundObject& compound, const std::string& name,
                                 std::string_view text) {
  NodeDescription result;
  result.name = name;
  result.niceName = niceNameOf(name);
  result.description = isBlank(text) ? "A published compound." : std::string(text);
  const NodeObject& node = *compound.node();
  for (const PortListObject* list : {&node.inputList(), &node.outputList()}) {
    for (const PortObject* port : list->items()) result.ports.push_back(toDescription(*port));
  }
  result.content = writeContent(compound);
  return result;
}

}  // namespace orvlib
