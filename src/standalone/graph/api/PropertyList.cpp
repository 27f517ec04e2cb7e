#include "platform/ORV_1_0/PropertyList.h"

#include "standalone/graph/api/GraphAccess.h"
#include "standalone/graph/edits/FaultPoints.h"
#include "standalone/graph/texts/PropertiesText.h"

namespace ORV_v1 {
namespace {

orvlib::FaultPoint kUnserialize("PropertyList unserialize");

}  // namespace

PropertyList::PropertyList() = default;
PropertyList::PropertyList(const PropertyList& other)
    : rep_(other.rep_ ? new Rep(*other.rep_) : nullptr) {}
PropertyList::~PropertyList() { delete rep_; }

PropertyList& PropertyList::operator=(const PropertyList& other) {
  PropertyList copy(other);
  std::swap(rep_, copy.rep_);
  return *this;
}

bool PropertyList::empty() const { return rep_ == nullptr; }

String PropertyList::serialize(SerializeMode) const {
  return GraphAccess::makeString(orvlib::writeProperties(GraphAccess::propertiesOf(*this)));
}

bool PropertyList::unserialize(const char* text, SerializeMode) {
  if (kUnserialize.refuses() || !text) return false;
  auto properties = orvlib::readProperties(text);
  if (!properties) return false;
  *this = GraphAccess::makePropertyList(std::move(*properties));
  return true;
}

PropertyList GraphAccess::makePropertyList(orvlib::Properties properties) {
  PropertyList list;
  if (!properties.empty()) list.rep_ = new PropertyList::Rep{std::move(properties)};
  return list;
}

const orvlib::Properties& GraphAccess::propertiesOf(const PropertyList& list) {
  static const orvlib::Properties kNone;
  return list.rep_ ? list.rep_->properties : kNone;
}

}  // namespace ORV_v1
