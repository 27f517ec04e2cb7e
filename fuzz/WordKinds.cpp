#include "fuzz/WordKinds.h"

#include <algorithm>
#include <map>
#include <vector>

namespace fuzz {
namespace {

using enum WordKind;
using Kinds = std::map<std::string_view, std::vector<WordKind>>;

const Kinds& ofFlags() {
  static const Kinds kinds{{"-addNode", {NodeType}},
                           {"-removeNode", {NodeName}},
                           {"-moveNodeIn", {NodeName}},
                           {"-explode", {NodeName}},
                           {"-resetToFactory", {NodeName}},
                           {"-canResetToFactory", {NodeName}},
                           {"-sourceNode", {NodeNames}},
                           {"-renameNode", {NodeName, NewName}},
                           {"-removeAnnotation", {Annotation}},
                           {"-moveAnnotationIn", {Annotation}},
                           {"-sourceAnnotation", {Annotation}},
                           {"-renameAnnotation", {Annotation, NewName}},
                           {"-setAnnotationMetaDataValue", {Annotation, Key, Text}},
                           {"-queryAnnotationMetaDataValue", {Annotation, Key}},
                           {"-create", {NewName}},
                           {"-addBackdrop", {NewName}},
                           {"-addStickyNote", {NewName}},
                           {"-portOptions", {Properties}},
                           {"-portValues", {Values}},
                           {"-createInputPort", {NewName, DataType}},
                           {"-createOutputPort", {NewName, DataType}},
                           {"-renamePort", {PortName, NewName}},
                           {"-movePort", {PortName}},
                           {"-movePortToIONode", {PortName, NodeName}},
                           {"-hidePort", {PortName}},
                           {"-deletePort", {PortName}},
                           {"-setPortDataType", {PortName, DataType}},
                           {"-queryPortDataType", {PortName}},
                           {"-setPortDefaultValues", {PortName, Values}},
                           {"-resetPortDefaultValues", {PortName}},
                           {"-queryPortDefaultValues", {PortName}},
                           {"-setPortMetaDataValue", {PortName, Key, Text}},
                           {"-queryPortMetaDataValue", {PortName, Key}},
                           {"-listPortChildren", {PortName}},
                           {"-addStatePorts", {NewName, NewName, DataType}},
                           {"-nodeType", {NodeType}},
                           {"-connectTo", {PortOfLevel}},
                           {"-connectedTo", {PortName}},
                           {"-setStateFlag", {State}},
                           {"-setMetaData", {Key, Text}},
                           {"-addMetaData", {Key, Text}},
                           {"-removeMetaData", {Key, Text}},
                           {"-clearMetaData", {Key}},
                           {"-queryMetaData", {Key}},
                           {"-setMetaDataFromString", {Properties}},
                           {"-publish", {Published, Library, Text}},
                           {"-publishGraph", {Published, Library, Text, File}},
                           {"-saveAs", {File}},
                           {"-open", {File}},
                           {"-file", {File}},
                           {"-name", {NewName}},
                           {"-setParameterValue", {Parameter, Text}},
                           {"-queryParameterDescription", {Parameter}},
                           {"-queryParameterValues", {Parameter}},
                           {"-queryParameterValueDescription", {Parameter, Text}},
                           {"-queryParameterValue", {Parameter}},
                           {"-queryRecordedValues", {Parameter}},
                           {"-libraries", {Runtime}},
                           {"-flushProxies", {Runtime}},
                           {"-listPortTypes", {Runtime}},
                           {"-nodes", {Runtime, Library}},
                           {"-type", {SceneType}},
                           {"-currentCompound", {Compound}},
                           {"-selectNodes", {NodeNames}},
                           {"-edit", {Graph}}};
  return kinds;
}

/// The last one stands for all that follow.
const Kinds& ofCommands() {
  static const Kinds kinds{{"createNode", {SceneType}},
                           {"delete", {SceneNode}},
                           {"select", {SceneNode}},
                           {"ls", {SceneNode}},
                           {"rename", {SceneNode, NewName}},
                           {"evaluate", {Graph, Port}},
                           {"help", {Command}},
                           {"loadPlugin", {File}},
                           {"source", {File}},
                           {"pluginInfo", {Module}},
                           {"orvCompound", {Graph, Compound}},
                           {"orvNode", {Graph, Node}},
                           {"orvConnect", {Graph, Source, Destination}},
                           {"orvCopy", {Graph, Compound}},
                           {"orvPaste", {Graph, Compound}},
                           {"orvPort", {Graph, Port}},
                           {"orvWatchPoint", {Graph, Node, PortName}},
                           {"orvChangeBracket", {Graph, Compound}}};
  return kinds;
}

}  // namespace

WordKind kindOfFlagArgument(std::string_view flag, std::size_t argument) {
  const auto found = ofFlags().find(flag);
  const bool known = found != ofFlags().end() && argument < found->second.size();
  return known ? found->second[argument] : Any;
}

WordKind kindOfPositional(std::string_view command, std::size_t index) {
  const auto found = ofCommands().find(command);
  if (found == ofCommands().end()) return Any;
  return found->second[std::min(index, found->second.size() - 1)];
}

}  // namespace fuzz
