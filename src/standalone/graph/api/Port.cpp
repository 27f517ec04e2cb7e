#include "platform/ORV_1_0/Port.h"

#include "standalone/graph/edits/FaultPoints.h"
#include "standalone/graph/model/ContainerObject.h"
#include "standalone/graph/model/PortExtras.h"
#include "standalone/graph/texts/ValueListText.h"
#include "standalone/graph/types/ValueText.h"

namespace ORV_v1 {
namespace {

orvlib::FaultPoint kGetDefaults("Port getPortDefaultValues");
orvlib::FaultPoint kUnserialize("Port unserializePortValuesString");

orvlib::PortObject& object(Port& port) { return static_cast<orvlib::PortObject&>(port); }

const orvlib::PortObject& object(const Port& port) {
  return static_cast<const orvlib::PortObject&>(port);
}

}  // namespace

Port::Port() = default;
Port::~Port() = default;

AddRefWrapper<Node> Port::getParentNode() { return AddRefWrapper<Node>(object(*this).node()); }

AddRefWrapper<Compound> Port::getParentCompound() {
  const auto& port = object(*this);
  return AddRefWrapper<Compound>(port.isInner() && port.node() ? port.node()->compound() : nullptr);
}

Port* Port::getParentPort() const { return object(*this).above(); }

PortIOType Port::getPortIOType() {
  return object(*this).isInput() ? PortIOType::kInput : PortIOType::kOutput;
}

Namable Port::getFullName() { return GraphAccess::makeNamable(object(*this).fullName()); }

Namable Port::getFullPathName() { return GraphAccess::makeNamable(object(*this).fullPath()); }

AddRefWrapper<PortDataType> Port::getDataType() { return object(*this).type(); }

AddRefWrapper<PortList>& Port::children() {
  auto& port = object(*this);
  port.childList();
  return port.children_;
}

PortList& Port::connectedTo() const {
  // A list that nothing changes may be shown to all who ask.
  return const_cast<orvlib::PortListObject&>(
      const_cast<orvlib::PortObject&>(object(*this)).listedPeers());
}

bool Port::isConnected() const { return object(*this).hasPeers(); }

bool Port::isFanIn() const { return object(*this).isFanInPort(); }

bool Port::isMemberFanIn() const { return object(*this).kind() == orvlib::PortKind::Member; }

bool Port::isCompoundInternalPort() const { return object(*this).isInner(); }

bool Port::getPortDefaultValues(StringArray& values) const {
  if (kGetDefaults.refuses()) return false;
  const auto value = object(*this).settableValue();
  if (!value) return false;
  GraphAccess::textsOf(values) = orvlib::printValue(*value);
  return true;
}

String Port::getPortMetaDataValue(const char* key) {
  return GraphAccess::makeMetadataText(object(*this).metadata(), key);
}

const AddRefWrapper<WatchPoint>& Port::getWatchPoint() const {
  static const AddRefWrapper<WatchPoint> none;
  const auto& extras = object(*this).extras_;
  return extras ? extras->watchPoint : none;
}

bool Port::unserializePortValuesString(const char* text, StringArray& values,
                                       const AddRefWrapper<PortDataType>& type) {
  if (kUnserialize.refuses() || !text) return false;
  auto read =
      orvlib::readValues(text, type == nullptr ? nullptr : GraphAccess::typeOf(*type).get());
  if (!read) return false;
  GraphAccess::textsOf(values) = std::move(*read);
  return true;
}

}  // namespace ORV_v1
