#include "standalone/widgets/look/Feeding.h"

#include <QStringList>
#include <algorithm>

#include "standalone/graph/model/NodeObject.h"

namespace orvuilib {

using orvlib::PortListObject;
using orvlib::PortObject;

namespace {

const PortListObject* membersOf(const PortObject& face) {
  return face.isFanInPort() ? face.madeChildren() : nullptr;
}

bool isConnected(const PortObject& face) {
  const PortListObject* members = membersOf(face);
  return face.hasPeers() ||
         (members && std::ranges::any_of(members->items(), &PortObject::hasPeers));
}

/// The face that takes, of the port or of one above it, as far as it is connected; else null.
const PortObject* connectedFace(const PortObject& port) {
  for (const PortObject* at = &port; at; at = at->above()) {
    const PortObject* face = takingFace(*at);
    if (face && isConnected(*face)) return face;
  }
  return nullptr;
}

}  // namespace

const PortObject* takingFace(const PortObject& port) {
  if (port.isInput()) return &port;
  if (!port.above()) return port.twin();
  const PortObject* above = takingFace(*port.above());
  const PortListObject* children = above ? above->madeChildren() : nullptr;
  if (!children) return nullptr;
  const auto isOther = [&port](const PortObject* child) { return child->name() == port.name(); };
  const auto found = std::ranges::find_if(children->items(), isOther);
  return found == children->items().end() ? nullptr : *found;
}

bool isFed(const PortObject& port) { return connectedFace(port) != nullptr; }

std::vector<PortObject*> feedersOf(const PortObject& port, std::size_t most) {
  std::vector<PortObject*> feeders;
  const auto add = [&](PortObject* source) {
    const bool isNew = source && std::ranges::find(feeders, source) == feeders.end();
    if (isNew && feeders.size() < most) feeders.push_back(source);
  };
  const PortObject* face = connectedFace(port);
  if (!face) return feeders;
  for (PortObject* peer : face->peers().items()) add(peer);
  if (const PortListObject* members = membersOf(*face)) {
    for (PortObject* member : members->items()) add(member->source());
  }
  return feeders;
}

QString sourceName(const PortObject& source) {
  const orvlib::NodeObject* node = source.node();
  const QString owner = node ? QString::fromStdString(node->name()) + "." : QString();
  return owner + QString::fromStdString(source.fullName());
}

QString feedersText(const PortObject& port) {
  constexpr std::size_t kMostNames = 16;
  const auto feeders = feedersOf(port, kMostNames + 1);
  QStringList names;
  for (const PortObject* feeder : feeders) names.append(sourceName(*feeder));
  if (names.size() > static_cast<int>(kMostNames)) names.back() = QChar(0x2026);
  return QString(QChar(0x2190)) + " " + names.join(", ");
}

}  // namespace orvuilib
