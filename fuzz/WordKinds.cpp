#include "fuzz/WordKinds.h"

#include <algorithm>
#include <map>
#include <vector>

namespace fuzz {
namespace {

using enum WordKind;
constexpr const char* kNames[] = {"a",          "add", "g",     "group", "in",    "out",
                                  "x1",         "ünï", "a b",   "1",     "_",     "value",
                                  "elements.m", "",    "frame", "note",  "{a,b}", "a.b"};
constexpr const char* kTexts[] = {"",          "0",       "1",   "-1",         "0.5",
                                  "true",      "text",    "a,b", "{a,b}",      "{1,2,3}",
                                  "{}",        "{,}",     "nan", "1e40",       "{a=b}",
                                  "{a={b,c}}", "{a=",     "\\",  "5",          "{0.1,0.2,0.3,1}",
                                  "fixed",     "changes", "all", "2147483648", "漢字\n\"q\"",
                                  "//",        ";"};
constexpr const char* kKeys[] = {"k",    "locked", "editor.position", "editor.text", "a=b",
                                 "unit", ""};
constexpr const char* kLibraries[] = {"core",   "core::math", "core::user", "user",
                                      "core::", "",           "::"};
constexpr const char* kPublished[] = {"core::user::made", "core::made", "made", "core::math::add",
                                      "core::user::",     "a b",        ""};
constexpr const char* kSceneTypes[] = {"orvGraph", "group", "locator", "nobody"};
constexpr const char* kStates[] = {"e", "f", "b", "enabled", "frozen", "x", ""};
constexpr const char* kParameters[] = {"record", "limit", "format",
                                       "digits", "value", "evaluation"};
constexpr const char* kFiles[] = {"a.scene",     "b.scene",       "a.yaml",
                                  "script.vesk", "nothing/there", "."};
constexpr const char* kRuntimes[] = {"standard", "standard", "nobody"};
constexpr const char* kModules[] = {"veskOrvPlugin"};
constexpr const char* kCommands[] = {"help", "orvCompound", "orv", "file", "nobody"};

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
                           {"-portOptions", {Text}},
                           {"-portValues", {Text}},
                           {"-createInputPort", {NewName, DataType}},
                           {"-createOutputPort", {NewName, DataType}},
                           {"-renamePort", {PortName, NewName}},
                           {"-movePort", {PortName}},
                           {"-movePortToIONode", {PortName, NodeName}},
                           {"-hidePort", {PortName}},
                           {"-deletePort", {PortName}},
                           {"-setPortDataType", {PortName, DataType}},
                           {"-queryPortDataType", {PortName}},
                           {"-setPortDefaultValues", {PortName, Text}},
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
                           {"-setMetaDataFromString", {Text}},
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

std::span<const char* const> wordsOf(WordKind kind) {
  static const std::map<WordKind, std::span<const char* const>> words{
      {NewName, kNames},        {Text, kTexts},       {Key, kKeys},
      {Library, kLibraries},    {Runtime, kRuntimes}, {Published, kPublished},
      {SceneType, kSceneTypes}, {State, kStates},     {Parameter, kParameters},
      {File, kFiles},           {Module, kModules},   {Command, kCommands}};
  const auto found = words.find(kind);
  return found == words.end() ? std::span<const char* const>() : found->second;
}

WordKind kindOfFlagArgument(std::string_view flag, std::size_t argument) {
  const auto found = ofFlags().find(flag);
  const bool known = found != ofFlags().end() && argument < found->second.size();
  return known ? found->second[argument] : Text;
}

WordKind kindOfPositional(std::string_view command, std::size_t index) {
  const auto found = ofCommands().find(command);
  if (found == ofCommands().end()) return Text;
  return found->second[std::min(index, found->second.size() - 1)];
}

}  // namespace fuzz
