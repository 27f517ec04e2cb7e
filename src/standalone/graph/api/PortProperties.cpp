#include "platform/ORV_1_0/PortProperties.h"

namespace ORV_v1 {

struct PortProperties::Rep {
  std::uint32_t flags = 0;
  PropertyList options;
  OptionalStringArray defaultValues;
};

PortProperties::PortProperties() : rep_(new Rep) {}
PortProperties::PortProperties(const PortProperties& other) : rep_(new Rep(*other.rep_)) {}
PortProperties::~PortProperties() { delete rep_; }

PortProperties& PortProperties::operator=(const PortProperties& other) {
  *rep_ = *other.rep_;
  return *this;
}

std::uint32_t PortProperties::getFlags() const { return rep_->flags; }

void PortProperties::setFlags(std::uint32_t flags) { rep_->flags = flags; }

const PropertyList& PortProperties::options() const { return rep_->options; }

PropertyList& PortProperties::options() { return rep_->options; }

const OptionalStringArray& PortProperties::defaultValues() const { return rep_->defaultValues; }

OptionalStringArray& PortProperties::defaultValues() { return rep_->defaultValues; }

}  // namespace ORV_v1
