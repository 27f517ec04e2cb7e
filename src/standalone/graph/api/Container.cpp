#include "platform/ORV_1_0/Container.h"

#include "standalone/graph/edits/FaultPoints.h"
#include "standalone/graph/model/ContainerObject.h"
#include "standalone/graph/model/ContainerTable.h"

namespace ORV_v1 {
namespace {

orvlib::FaultPoint kFindPorts("Container findPortsForConnection");
orvlib::FaultPoint kOpenBracket("Container openChangeBracket");
orvlib::FaultPoint kCloseBracket("Container closeChangeBracket");

orvlib::ContainerObject& object(const Container& container) {
  return const_cast<orvlib::ContainerObject&>(
      static_cast<const orvlib::ContainerObject&>(container));
}

}  // namespace

Container::Container() = default;
Container::~Container() = default;

Container* Container::getFromUUID(const char* uuid) {
  return uuid ? orvlib::ContainerTable::find(uuid) : nullptr;
}

AddRefWrapper<Node> Container::findNodeFromPath(const char* path) {
  return AddRefWrapper<Node>(path ? object(*this).findNode(path) : nullptr);
}

AddRefWrapper<Port> Container::findPortFromPath(const char* path, ESearchIOType ioType,
                                                ESearchMode mode) {
  return AddRefWrapper<Port>(path ? object(*this).findPort(path, ioType, mode) : nullptr);
}

AddRefWrapper<Annotation> Container::findAnnotationFromPath(const char* path) {
  return AddRefWrapper<Annotation>(path ? object(*this).findAnnotation(path) : nullptr);
}

bool Container::findPortsForConnection(const char* sourcePath, const char* destinationPath,
                                       AddRefWrapper<Port>* source,
                                       AddRefWrapper<Port>* destination) {
  const bool refused = kFindPorts.refuses();
  if (!source || !destination) return false;
  *source = *destination = AddRefWrapper<Port>();
  if (refused || !sourcePath || !destinationPath) return false;
  const auto [from, to] = object(*this).findPair(sourcePath, destinationPath);
  if (!from) return false;
  *source = AddRefWrapper<Port>(from);
  *destination = AddRefWrapper<Port>(to);
  return true;
}

bool Container::openChangeBracket(ChangeBracketClient* client) const {
  return !kOpenBracket.refuses() && object(*this).openBracket(client);
}

bool Container::closeChangeBracket(ChangeBracketClient* client) const {
  return !kCloseBracket.refuses() && object(*this).closeBracket(client);
}

}  // namespace ORV_v1
