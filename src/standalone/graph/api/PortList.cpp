#include "platform/ORV_1_0/PortList.h"

#include "standalone/graph/model/PortObject.h"

namespace ORV_v1 {
namespace {

const orvlib::PortListObject& object(const PortList& list) {
  return static_cast<const orvlib::PortListObject&>(list);
}

}  // namespace

PortList::PortList() = default;
PortList::~PortList() = default;

unsigned int PortList::size() const { return object(*this).count(); }

AddRefWrapper<Port> PortList::operator[](unsigned int index) const {
  return AddRefWrapper<Port>(object(*this).at(index));
}

AddRefWrapper<Port> PortList::operator[](const char* name) const {
  return AddRefWrapper<Port>(name ? object(*this).find(name) : nullptr);
}

unsigned int PortList::findPort(AddRefWrapper<Port> port) const {
  return object(*this).indexOf(static_cast<const orvlib::PortObject*>(port.get()));
}

ListIterator<PortList> PortList::begin() const { return {*this, 0}; }

ListIterator<PortList> PortList::end() const { return {*this, size()}; }

}  // namespace ORV_v1
