#include "platform/ORV_1_0/PortDataType.h"

#include "standalone/graph/api/GraphAccess.h"

namespace ORV_v1 {

PortDataType::PortDataType(Rep* rep) : rep_(rep) {}
PortDataType::~PortDataType() { delete rep_; }

const char* PortDataType::getNiceName() const { return rep_->type->niceName.c_str(); }

const char* PortDataType::getName() const { return rep_->type->name.c_str(); }

void PortDataType::appendNodeName(const char*) {}

void PortDataType::appendPortName(const char*) {}

void PortDataType::setName(const char*) {}

AddRefWrapper<PortDataType> GraphAccess::makePortType(orvlib::TypeHandle type) {
  return AddRefWrapper(new PortDataType(new PortDataType::Rep{std::move(type)}));
}

const orvlib::TypeHandle& GraphAccess::typeOf(const PortDataType& type) { return type.rep_->type; }

}  // namespace ORV_v1
