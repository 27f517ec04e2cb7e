// Connections. The flag that disconnects stands ahead of the two paths, that of a connection
// behind.

#include "hook/Target.h"
#include "hook/execution.h"
#include "hook/orvVeskCommandHook.h"
#include "platform/ORV_1_0/Container.h"

using ORV_v1::AddRefWrapper;
using ORV_v1::Node;
using ORV_v1::NodeList;
using ORV_v1::Port;
using ORV_v1::toQString;

namespace {

/// The graph is that of the source's node, or, for a source that has none, of the destination's.
ORV_v1::Namable containerOf(const AddRefWrapper<Port>& source,
                            const AddRefWrapper<Port>& destination) {
  AddRefWrapper<Node> node = source->getParentNode();
  if (!node) node = destination->getParentNode();
  return containerNameOf(*node->getContainer());
}

}  // namespace

/// The first node that is in a graph decides which graph it is. Without a node both texts are
/// empty.
bool orvVeskCommandHook::connectNodes(const NodeList& nodes) {
  QString container;
  QList<QString> paths;
  for (const NodeHandle& node : nodes) {
    if (container.isEmpty()) {
      container = toQString(containerNameOf(*node->getContainer()).getName());
    }
    paths.append(toQString(pathOf(node).getName()));
  }
  CommandLine line(kConnectCommand);
  line.text(container).flag("-connectNodes");
  return runLineForSuccess(paths.isEmpty() ? line.text(QString()) : line.texts(paths));
}

bool orvVeskCommandHook::connectPorts(const PortHandle& source, const PortHandle& destination,
                                      bool copyMetaData) {
  CommandLine line(kConnectCommand);
  line.text(containerOf(source, destination)).text(pathOf(source)).text(pathOf(destination));
  if (copyMetaData) line.flag("-copyMetaData");
  return runLineForSuccess(line);
}

bool orvVeskCommandHook::disconnectPorts(const PortHandle& source, const PortHandle& destination) {
  CommandLine line(kConnectCommand);
  line.text(containerOf(source, destination)).flag("-disconnect");
  return runLineForSuccess(line.text(pathOf(source)).text(pathOf(destination)));
}
