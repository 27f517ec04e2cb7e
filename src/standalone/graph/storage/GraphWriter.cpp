#include "standalone/graph/storage/GraphWriter.h"

#include <algorithm>

#include "standalone/graph/model/AnnotationObject.h"
#include "standalone/graph/model/ContainerObject.h"
#include "standalone/graph/model/ContainerTable.h"
#include "standalone/graph/storage/LineWords.h"
#include "standalone/graph/storage/SelectionSeal.h"
#include "standalone/graph/storage/StoredFormat.h"

namespace orvlib {
namespace {

/// Levels below this one are not indented further, so that the text stays as long as the graph.
constexpr std::size_t kDeepestIndent = 20;

bool isIo(const NodeObject& node) {
  return node.nodeKind() == NodeKind::Input || node.nodeKind() == NodeKind::Output;
}

/// Whether its content is its own, and not that of a published compound.
bool isOpenCompound(const NodeObject& node) {
  return node.compound() && !node.compound()->isReference();
}

/// "add1.result", or ".result" for the port of the level's own compound.
void addEnd(std::string& line, const PortObject& port) {
  line += ' ';
  if (!port.isInner()) line += port.node()->name();
  line += '.';
  line += port.fullName();
}

/// Empty when it is in none that others find.
std::string uuidOf(const CompoundObject& level) {
  const ContainerObject* graph = level.node()->container();
  return graph ? ContainerTable::uuidOf(*graph) : std::string();
}

}  // namespace

std::string GraphWriter::withHead(std::string_view format, std::string_view runtime) const {
  std::string text(format);
  text += ' ';
  text += kFormatVersion;
  text += '\n';
  if (!runtime.empty()) {
    text += "runtime";
    addWord(text, runtime);
    text += '\n';
  }
  return text + used_.text() + body_;
}

void GraphWriter::begin(std::string_view statement) {
  body_.append(2 * std::min(depth_, kDeepestIndent), ' ');
  body_ += statement;
}

void GraphWriter::number(std::uint64_t number) {
  body_ += ' ';
  body_ += std::to_string(number);
}

void GraphWriter::openBlock(std::string_view statement) {
  begin(statement);
  end();
  ++depth_;
}

void GraphWriter::closeBlock() {
  --depth_;
  begin("end");
  end();
}

void GraphWriter::writeNode(const NodeObject& node) {
  if (isIo(node)) {
    writeIoNode(node);
  } else if (isOpenCompound(node)) {
    writeCompound(node);
  } else {
    writeMadeNode(node);
  }
}

void GraphWriter::writeMadeNode(const NodeObject& node) {
  begin("node");
  word(node.name());
  word(node.typeName());
  const std::size_t variant = used_.add(node);
  if (variant > 1) number(variant);
  end();
  ++depth_;
  writeStates(node);
  writeMetadata("metadata", {}, node.metadata());
  if (node.description()) writeOwnPorts(node);
  writePortSettings(node);
  --depth_;
}

void GraphWriter::writeCompound(const NodeObject& node) {
  begin("compound");
  word(node.name());
  end();
  ++depth_;
  writeStates(node);
  writeMetadata("metadata", {}, node.metadata());
  writeLevel(*node.compound());
  closeBlock();
}

void GraphWriter::writeIoNode(const NodeObject& node) {
  begin("io");
  const bool input = node.nodeKind() == NodeKind::Input;
  body_ += ' ';
  body_ += directionWord(input ? PortDirection::Input : PortDirection::Output);
  word(node.name());
  end();
  ++depth_;
  writeStates(node);
  writeMetadata("metadata", {}, node.metadata());
  if (!chosen_ || !chosen_->contains(&node)) {
    for (const PortObject* port : (input ? node.outputList() : node.inputList()).items()) {
      begin("show");
      word(port->name());
      end();
    }
  }
  --depth_;
}

void GraphWriter::writeAnnotation(const AnnotationObject& annotation) {
  begin(annotation.kind() == AnnotationKind::Backdrop ? "backdrop" : "note");
  word(annotation.name());
  end();
  ++depth_;
  writeMetadata("metadata", {}, annotation.metadata());
  --depth_;
}

void GraphWriter::writeStates(const NodeObject& node) {
  const bool disabled = !node.is(NodeState::Enabled);
  const bool frozen = node.is(NodeState::Frozen);
  const bool bypassed = node.is(NodeState::Bypassed);
  if (!disabled && !frozen && !bypassed) return;
  begin("state");
  if (disabled) body_ += " disabled";
  if (frozen) body_ += " frozen";
  if (bypassed) body_ += " bypassed";
  end();
}

void GraphWriter::writeMetadata(std::string_view statement, std::string_view path,
                                const Properties& set) {
  for (const Property& property : set.all()) {
    begin(statement);
    if (!path.empty()) word(path);
    word(property.key);
    for (const std::string& value : property.values) word(value);
    end();
  }
}

void GraphWriter::writeLevel(const CompoundObject& level) {
  if (!level.origin().empty() && !bare_) {
    begin("origin");
    word(level.origin());
    end();
  }
  writeMetadata("compound-metadata", {}, level.metadata());
  writeOwnPorts(*level.node());
  writeStatePairs(*level.node());
  writePortSettings(*level.node());
  bare_ = false;  // what is inside belongs to what the compound is
  for (const NodeObject* node : level.nodes().items()) writeNode(*node);
  for (const AnnotationObject* note : level.annotations().items()) writeAnnotation(*note);
  writeWires(level);
}

void GraphWriter::writeWires(const CompoundObject& level) {
  for (const PortObject* port : level.inputs().items()) writeWiresFrom(*port);
  for (const NodeObject* node : level.nodes().items()) {
    if (isIo(*node)) continue;
    for (const PortObject* port : node->outputList().items()) writeWiresFrom(*port);
  }
}

void GraphWriter::writeWiresFrom(const PortObject& source) {
  for (const PortObject* target : source.peers().items()) {
    if (chosen_ && depth_ == 1 && (target->isInner() || !chosen_->contains(target->node()))) {
      continue;
    }
    begin("wire");
    addEnd(body_, source);
    addEnd(body_, *target);
    end();
  }
  const PortListObject* children = source.madeChildren();
  if (!children) return;
  for (const PortObject* child : children->items()) writeWiresFrom(*child);
}

void GraphWriter::writeIncoming(const PortObject& target) {
  for (const PortObject* source : target.peers().items()) {
    if (!source->isInner() && chosen_->contains(source->node())) continue;
    begin("incoming");
    addEnd(body_, target);
    word(source->fullPath());
    end();
  }
  const PortListObject* children = target.madeChildren();
  if (!children) return;
  for (const PortObject* child : children->items()) writeIncoming(*child);
}

std::string GraphWriter::graph(const NodeObject& top, std::string_view runtime) {
  GraphWriter writer;
  writer.openBlock(kGraphBlock);
  writer.writeStates(top);
  writer.writeMetadata("metadata", {}, top.metadata());
  writer.writeLevel(*top.compound());
  writer.closeBlock();
  return writer.withHead(kGraphFormat, runtime);
}

std::string GraphWriter::content(const CompoundObject& compound) {
  GraphWriter writer;
  writer.bare_ = true;
  writer.openBlock(kContentBlock);
  writer.writeLevel(compound);
  writer.closeBlock();
  return writer.withHead(kContentFormat, {});
}

std::string GraphWriter::selection(const CompoundObject& level, std::span<NodeObject* const> nodes,
                                   std::span<AnnotationObject* const> annotations) {
  const NodeSet chosen(nodes.begin(), nodes.end());
  const absl::flat_hash_set<const AnnotationObject*> notes(annotations.begin(), annotations.end());
  // In the order of the level, whatever the order of choosing was.
  std::vector<const NodeObject*> ordered;
  for (const NodeObject* node : level.nodes().items()) {
    if (chosen.contains(node)) ordered.push_back(node);
  }
  GraphWriter writer;
  writer.chosen_ = &chosen;
  writer.openBlock(kSelectionBlock);
  for (const NodeObject* node : ordered) writer.writeNode(*node);
  for (const AnnotationObject* note : level.annotations().items()) {
    if (notes.contains(note)) writer.writeAnnotation(*note);
  }
  for (const NodeObject* node : ordered) {
    if (isIo(*node)) continue;
    for (const PortObject* port : node->outputList().items()) writer.writeWiresFrom(*port);
  }
  for (const NodeObject* node : ordered) {
    if (isIo(*node)) continue;
    for (const PortObject* port : node->inputList().items()) writer.writeIncoming(*port);
  }
  writer.closeBlock();
  std::string lines(kFromStatement);
  addWord(lines, uuidOf(level));
  ((lines += '\n') += writer.used_.text()) += writer.body_;
  return sealOf(lines) + lines;
}

}  // namespace orvlib
