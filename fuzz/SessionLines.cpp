#include "fuzz/SessionLines.h"

#include <algorithm>

#include "standalone/graph/api/GraphAccess.h"
#include "standalone/host/engine/HostAccess.h"
#include "standalone/host/language/Tokenizer.h"
#include "standalone/host/language/Utf8.h"
#include "standalone/host/scene/Scene.h"
#include "standalone/vesk/OrvGraphPayload.h"

namespace fuzz {

namespace {

using orvlib::CompoundObject;
using orvlib::NodeObject;
using orvlib::PortObject;

constexpr const char* kNumbers[] = {"0",     "1",          "2",           "1",         "0",
                                    "3",     "2",          "-1",          "7",         "100",
                                    "65536", "2147483647", "-2147483648", "4294967295"};
constexpr const char* kTruths[] = {"true", "false", "on", "0"};

/// What edits graphs comes more often.
constexpr const char* kOften[] = {"orvCompound", "orvCompound",  "orvCompound", "orvNode",
                                  "orvConnect",  "orvConnect",   "orvPort",     "orvCopy",
                                  "orvPaste",    "orvWatchPoint"};
constexpr std::string_view kNever[] = {"quit", "unloadPlugin"};

/// Commands that take paths of files, and publish: no other word there looks like a path.
constexpr std::string_view kWithFiles[] = {"file", "source", "loadPlugin", "snapshot", "workspace"};
constexpr std::string_view kFlagsWithFiles[] = {"-saveAs", "-publish", "-publishGraph"};

/// How many flags a line has; most do one thing.
constexpr std::size_t kFlagCounts[] = {1, 0, 1, 1, 2, 2, 3, 6};

template <class List, class Value>
bool isIn(const List& list, const Value& value) {
  return std::ranges::find(list, value) != std::end(list);
}

/// `path` below that of a compound's node.
std::string below(const CompoundObject& level, const std::string& name) {
  const std::string path = level.node()->fullPath();
  return (path == "/" ? "" : path) + "/" + name;
}

}  // namespace

std::string SessionLines::line() {
  const unsigned choice = bytes_.byte();
  if (choice < 14) return "undo";
  if (choice < 24) return "redo";
  if (choice < 28) return "undoInfo -openChunk -chunkName \"" + text(WordKind::Key) + "\"";
  if (choice < 32) return "undoInfo -closeChunk";
  if (choice < 160) return commandLine(bytes_.oneOf(kOften));
  const std::vector<std::string> all = world_.session().registry().names();
  const std::string& command = bytes_.oneOf(all);
  return isIn(kNever, command) ? "undo" : commandLine(command);
}

/// A graph, a level in it and a node in that.
void SessionLines::choosePlace() {
  const auto& nodes = world_.session().scene().nodes();
  std::vector<vesk::SceneNode*> holders;
  for (const auto& [place, node] : nodes) {
    if (node->type() == "orvGraph") holders.push_back(node.get());
  }
  if (holders.empty()) return;
  vesk::SceneNode& holder = *bytes_.oneOf(holders);
  graphName_ = bytes_.rarely(8) ? holder.uuid() : holder.name();
  const auto& graph = static_cast<vesk::OrvGraphPayload*>(holder.payload())->graph();
  level_ = graph.container().top().compound();
  for (unsigned steps = bytes_.byte(); level_->nodes().count() > 0; steps /= 4) {
    node_ = level_->nodes().at(static_cast<unsigned>(bytes_.below(level_->nodes().count())));
    if (steps % 4 != 3 || !node_->compound()) break;
    level_ = node_->compound();
  }
}

std::string SessionLines::commandLine(const std::string& command) {
  command_ = command;
  confined_ = isIn(kWithFiles, command);
  choosePlace();
  const auto entry = world_.session().registry().find(command);
  const vesk::SyntaxData& syntax = HostAccess::data(entry->syntax);
  std::string line = command;
  const bool query = syntax.hasQuery() && bytes_.rarely(3);
  if (query) line += " -query";
  if (syntax.hasEdit() && bytes_.rarely(3)) line += " -edit";
  const auto& types = syntax.arguments();
  const std::size_t most = types.size() + (syntax.repeatsLastArgument() ? 2 : 0);
  const std::size_t count = bytes_.rarely(16) ? bytes_.below(most + 2) : types.size();
  for (std::size_t i = 0; i < count; ++i) {
    const auto type = types.empty() ? KSyntax::ArgString : types[std::min(i, types.size() - 1)];
    line += ' ' + word(type, kindOfPositional(command_, i));
  }
  if (syntax.flags().empty()) return line;
  for (std::size_t left = kFlagCounts[bytes_.below(8)]; left > 0 && !bytes_.empty(); --left) {
    line += ' ' + flagWords(bytes_.oneOf(syntax.flags()), query);
  }
  return line;
}

std::string SessionLines::flagWords(const vesk::FlagSpec& flag, bool query) {
  const std::string name = flag.lineName();
  std::string words = bytes_.rarely(4) ? flag.shortLineName() : name;
  if (query && !flag.keepsArgumentsInQuery) return words;
  const bool outside = std::exchange(confined_, confined_ || isIn(kFlagsWithFiles, name));
  if (confined_) world_.noteFiles();
  for (std::size_t i = 0; i < flag.arguments.size(); ++i) {
    words += ' ' + word(flag.arguments[i], kindOfFlagArgument(name, i));
  }
  confined_ = outside;
  return words;
}

std::string SessionLines::word(vesk::ArgType type, WordKind kind) {
  const bool wrong = bytes_.rarely(32);
  if (type == KSyntax::ArgBoolean && !wrong) return bytes_.oneOf(kTruths);
  const bool number = type != KSyntax::ArgString && type != KSyntax::ArgBoolean;
  if (number && !wrong) return bytes_.oneOf(kNumbers);
  if (kind == WordKind::File) return vesk::quoted(text(kind));
  if (bytes_.rarely(24))
    kind = static_cast<WordKind>(bytes_.below(static_cast<std::size_t>(WordKind::Last)));
  return vesk::quoted(confined(wrong ? freeText() : text(kind)));
}

/// Without what could lead out of the world's folder.
std::string SessionLines::confined(std::string text) const {
  if (confined_) std::ranges::replace(text, '/', '_');
  return text;
}

std::string SessionLines::freeText() {
  std::string text = vesk::utf8::repaired(bytes_.text(40));
  std::erase(text, '\0');
  return text;
}

std::string SessionLines::text(WordKind kind) {
  const auto words = wordsOf(kind);
  if (words.empty()) return nameInScene(kind);
  if (kind == WordKind::File) return world_.files().path(bytes_.oneOf(words));
  const bool mayBeFree = kind == WordKind::NewName || kind == WordKind::Text;
  return mayBeFree && bytes_.rarely(6) ? freeText() : bytes_.oneOf(words);
}

std::string SessionLines::nameInScene(WordKind kind) {
  switch (kind) {
    case WordKind::SceneNode:
      return sceneNode();
    case WordKind::Graph:
      return graphName_;
    case WordKind::Compound:
      return level_ ? level_->node()->fullPath() : "/";
    case WordKind::Node:
      return node_ ? node_->fullPath() : "/";
    case WordKind::Source:
    case WordKind::Destination:
      return endOfWire(kind == WordKind::Source);
    case WordKind::NodeName:
      return nodeName();
    case WordKind::NodeNames:
      return bytes_.rarely(2) ? "{" + nodeName() + "," + nodeName() + "}" : nodeName();
    case WordKind::PortName:
      return portName();
    case WordKind::PortOfLevel:
      return nodeName() + "." + portName();
    case WordKind::Annotation:
      return annotationName();
    case WordKind::NodeType:
      return nodeType();
    case WordKind::DataType:
      return dataType();
    default:
      return portPath();
  }
}

std::string SessionLines::sceneNode() {
  const auto& nodes = world_.session().scene().nodes();
  if (nodes.empty() || bytes_.rarely(12)) return text(WordKind::NewName);
  return bytes_.oneOf(nodes).second->name();
}

std::string SessionLines::nodeName() {
  if (!level_ || level_->nodes().count() == 0) return text(WordKind::NewName);
  return level_->nodes().at(static_cast<unsigned>(bytes_.below(level_->nodes().count())))->name();
}

std::string SessionLines::annotationName() {
  if (!level_ || level_->annotations().count() == 0) return text(WordKind::NewName);
  const std::size_t index = bytes_.below(level_->annotations().count());
  return level_->annotations().at(static_cast<unsigned>(index))->name();
}

/// Any port of the node or below one; null without any.
PortObject* SessionLines::port(NodeObject& node) {
  const std::size_t inputs = node.inputList().count();
  const std::size_t count = inputs + node.outputList().count();
  if (count == 0) return nullptr;
  const auto index = static_cast<unsigned>(bytes_.below(count));
  PortObject* port = index < inputs ? node.inputList().at(index)
                                    : node.outputList().at(static_cast<unsigned>(index - inputs));
  return bytes_.rarely(4) ? &childOf(*port) : port;
}

/// The port itself when it has none.
PortObject& SessionLines::childOf(PortObject& port) {
  const orvlib::PortListObject* children = port.childList();
  if (!children || children->count() == 0) return port;
  return *children->at(static_cast<unsigned>(bytes_.below(children->count())));
}

/// Of the level's own node for what edits compounds, else of the node.
std::string SessionLines::portName() {
  NodeObject* node = command_ == "orvCompound" && level_ ? level_->node() : node_;
  PortObject* found = node ? port(*node) : nullptr;
  return found ? found->fullName() : text(WordKind::NewName);
}

/// A port in the level or of it.
std::string SessionLines::portPath() {
  if (!level_) return "/";
  const unsigned count = level_->nodes().count();
  const auto index = static_cast<unsigned>(bytes_.below(count + 1));
  NodeObject* node = index < count ? level_->nodes().at(index) : level_->node();
  PortObject* found = port(*node);
  if (!found) return below(*level_, node->name());
  return found->fullPath();
}

/// What gives values in the level, or what takes some: of a node in it, or of its own boundary.
std::string SessionLines::endOfWire(bool source) {
  if (!level_ || bytes_.rarely(12)) return portPath();
  const unsigned count = level_->nodes().count();
  const auto index = static_cast<unsigned>(bytes_.below(count + 1));
  NodeObject& node = index < count ? *level_->nodes().at(index) : *level_->node();
  const auto& ports = (index < count) == source ? node.outputList() : node.inputList();
  if (ports.count() == 0) return portPath();
  PortObject& port = *ports.at(static_cast<unsigned>(bytes_.below(ports.count())));
  return bytes_.rarely(5) ? childOf(port).fullPath() : port.fullPath();
}

std::string SessionLines::nodeType() {
  static const std::vector<std::string> kTypes = [] {
    std::vector<std::string> names;
    const auto& content =
        ORV_v1::GraphAccess::loaded(*orvlib::RuntimeRegistry::current()->find("standard"))
            .content();
    for (const auto& [name, definition] : content.nodesByName) names.push_back(name);
    std::ranges::sort(names);
    return names;
  }();
  return bytes_.rarely(6) ? text(WordKind::Published) : bytes_.oneOf(kTypes);
}

std::string SessionLines::dataType() {
  const auto& types =
      ORV_v1::GraphAccess::loaded(*orvlib::RuntimeRegistry::current()->find("standard"))
          .description()
          .types.all();
  return bytes_.rarely(12) ? "magic" : bytes_.oneOf(types)->name;
}

}  // namespace fuzz
