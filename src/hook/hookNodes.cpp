// Nodes and compounds: the edits that make, name, remove, publish and regroup them.

#include "hook/Target.h"
#include "hook/execution.h"
#include "hook/orvVeskCommandHook.h"
#include "platform/ORV_1_0/AnnotationList.h"
#include "platform/ORV_1_0/NodeList.h"

using ORV_v1::NodeFlags;
using ORV_v1::NodeList;

namespace {

void addConnectTo(CommandLine& line, const QString& connectTo) {
  if (!connectTo.isEmpty()) line.flag("-connectTo").text(connectTo);
}

void addEach(CommandLine& line, const char* flag, const QList<QString>& names) {
  for (const QString& name : names) line.flag(flag).text(name);
}

}  // namespace

orvVeskCommandHook::NodeHandle orvVeskCommandHook::addNode(const CompoundHandle& compound,
                                                           const QString& typeName,
                                                           const QString& connectTo) {
  CommandLine line = lineFor(kCompoundCommand, Target(compound));
  line.flag("-addNode").text(typeName);
  addConnectTo(line, connectTo);
  return runLineForNode(line, compound);
}

orvVeskCommandHook::NodeHandle orvVeskCommandHook::addIONode(const CompoundHandle& compound,
                                                             NodeFlags kind,
                                                             const QString& connectTo) {
  CommandLine line = lineFor(kCompoundCommand, Target(compound));
  line.flag("-addIONode").boolean(kind == NodeFlags::kInputNode);
  addConnectTo(line, connectTo);
  return runLineForNode(line, compound);
}

void orvVeskCommandHook::renameNode(const NodeHandle& node, const QString& newName) {
  CommandLine line = lineFor(kCompoundCommand, Target(node->getParentCompound()));
  runLine(line.flag("-renameNode").text(shortNameOf(*node)).text(newName));
}

void orvVeskCommandHook::removeNode(const NodeHandle& node) {
  const CompoundHandle parent = node->getParentCompound();
  if (!parent) return;
  const Target target(containerNameOf(*node->getContainer()), pathOf(parent->getAsNode()));
  runLine(lineFor(kCompoundCommand, target).flag("-removeNode").text(shortNameOf(*node)));
}

bool orvVeskCommandHook::publish(const CompoundHandle& compound, const char* name,
                                 const char* library, const char* description, bool replace) {
  CommandLine line = lineFor(kCompoundCommand, Target(compound));
  line.flag("-publish").text(name).text(library).text(description).boolean(replace);
  return runLineForSuccess(line);
}

bool orvVeskCommandHook::publishGraph(const CompoundHandle& compound, const char* name,
                                      const char* library, const char* description,
                                      const char* file) {
  CommandLine line = lineFor(kCompoundCommand, Target(compound));
  line.flag("-publishGraph").text(name).text(library).text(description).text(file);
  return runLineForSuccess(line);
}

void orvVeskCommandHook::setIsReferenced(const CompoundHandle& compound, bool referenced) {
  CommandLine line = lineFor(kCompoundCommand, Target(compound));
  runLine(line.flag("-setIsReferenced").boolean(referenced));
}

void orvVeskCommandHook::resetToFactory(const CompoundHandle& compound) {
  CommandLine line(kCompoundCommand);
  line.flag("-resetToFactory").text(shortNameOf(*compound));
  addTarget(line, Target(compound));
  runLine(line);
}

/// A new compound comes last among the nodes of its level: it is found by that, and not by name.
void orvVeskCommandHook::createCompound(const char* name, const orvUI_v1::EditSelection& selection,
                                        CompoundHandle& compound) {
  const NodeHandle parent = selection.parent->getAsNode();
  CommandLine line(kCompoundCommand);
  line.flag("-create").text(name);
  addEach(line, "-moveNodeIn", shortNamesOf(*selection.nodes));
  addEach(line, "-moveAnnotationIn", shortNamesOf(*selection.annotations));
  addTarget(line, Target(parent));
  if (!runLine(line)) return;
  const NodeList& nodes = parent->asCompound()->getChildNodes();
  if (nodes.size() > 0) compound = nodes[nodes.size() - 1]->asCompound();
}

void orvVeskCommandHook::explodeCompounds(const CompoundHandle& parent, NodeList*& compounds) {
  CommandLine line(kCompoundCommand);
  addEach(line, "-explode", shortNamesOf(*compounds));
  addTarget(line, Target(parent));
  runLine(line);
}
