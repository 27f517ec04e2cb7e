#include "standalone/graph/model/ContainerObject.h"

namespace orvlib {
namespace {

struct PortPath {
  std::string_view node;
  std::string_view port;  ///< "color.r"; empty for a path that names no port
};

PortPath splitPortPath(std::string_view path) {
  const auto slash = path.rfind('/');
  if (slash == path.npos) return {};
  const auto dot = path.find('.', slash);
  if (dot == path.npos) return {};
  return {path.substr(0, dot), path.substr(dot + 1)};
}

/// The face of `outer` for a search mode; for a port with one face, itself.
PortObject* face(PortObject* outer, unsigned int mode) {
  return mode == ORV_v1::Container::kSearchInner && outer->twin() ? outer->twin() : outer;
}

bool fits(const PortObject& port, unsigned int ioType) {
  return ioType == ORV_v1::Container::kSearchEither ||
         ioType == static_cast<unsigned int>(port.direction());
}

/// The level at which the port can be connected: the one around its node, or for an inner face the
/// one it leads to.
const CompoundObject* level(const PortObject& port) {
  return port.isInner() ? port.node()->compound() : port.node()->parent();
}

bool canFace(const PortObject& one, const PortObject& other) {
  return one.direction() != other.direction() && level(one) && level(one) == level(other);
}

}  // namespace

NodeObject* ContainerObject::findNode(std::string_view path) const {
  if (path.empty() || path.front() != '/') return nullptr;
  NodeObject* node = top_.get();
  if (path.size() == 1) return node;
  while (node && !path.empty()) {
    path.remove_prefix(1);
    const std::string_view name = path.substr(0, path.find('/'));
    node = node->compound() ? node->compound()->nodes().find(name) : nullptr;
    path.remove_prefix(name.size());
  }
  return node;
}

CompoundObject* ContainerObject::findCompound(std::string_view path) const {
  if (lastFound_.revision == revision_ && lastFound_.path == path) return lastFound_.compound;
  const NodeObject* node = findNode(path);
  lastFound_.path = path;
  lastFound_.compound = node ? node->compound() : nullptr;
  lastFound_.revision = revision_;
  return lastFound_.compound;
}

PortObject* ContainerObject::findPort(std::string_view path, unsigned int ioType,
                                      unsigned int mode) const {
  if (mode > ORV_v1::Container::kSearchOuter) return nullptr;
  const PortPath parts = splitPortPath(path);
  const NodeObject* node = findNode(parts.node);
  if (!node) return nullptr;
  const auto dot = parts.port.find('.');
  PortObject* port = node->port(parts.port.substr(0, dot));
  if (port) port = face(port, mode);
  if (port && dot != path.npos) port = port->descendant(parts.port.substr(dot + 1));
  return port && fits(*port, ioType) ? port : nullptr;
}

AnnotationObject* ContainerObject::findAnnotation(std::string_view path) const {
  const auto slash = path.rfind('/');
  if (slash == path.npos) return nullptr;
  const CompoundObject* compound = findCompound(slash == 0 ? "/" : path.substr(0, slash));
  return compound ? compound->annotations().find(path.substr(slash + 1)) : nullptr;
}

std::pair<PortObject*, PortObject*> ContainerObject::findPair(std::string_view source,
                                                              std::string_view destination) const {
  constexpr unsigned int kModes[] = {ORV_v1::Container::kSearchOuter,
                                     ORV_v1::Container::kSearchInner};
  std::pair<PortObject*, PortObject*> reverse{nullptr, nullptr};
  for (const unsigned int sourceMode : kModes) {
    PortObject* from = findPort(source, ORV_v1::Container::kSearchEither, sourceMode);
    for (const unsigned int destinationMode : kModes) {
      PortObject* to = findPort(destination, ORV_v1::Container::kSearchEither, destinationMode);
      if (!from || !to || !canFace(*from, *to)) continue;
      // Two ports of one compound face each other on both sides of it, in opposite directions.
      if (!from->isInput()) return {from, to};
      if (!reverse.first) reverse = {from, to};
    }
  }
  return reverse;
}

}  // namespace orvlib
