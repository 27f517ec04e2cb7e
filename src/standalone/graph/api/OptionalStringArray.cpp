#include "platform/ORV_1_0/OptionalStringArray.h"

#include <utility>

namespace ORV_v1 {

struct OptionalStringArray::Rep {
  StringArray values;
};

OptionalStringArray::OptionalStringArray() = default;
OptionalStringArray::OptionalStringArray(const OptionalStringArray& other)
    : rep_(other.rep_ ? new Rep(*other.rep_) : nullptr) {}
OptionalStringArray::~OptionalStringArray() { delete rep_; }

OptionalStringArray& OptionalStringArray::operator=(const OptionalStringArray& other) {
  OptionalStringArray copy(other);
  std::swap(rep_, copy.rep_);
  return *this;
}

bool OptionalStringArray::isValid() const { return rep_ != nullptr; }

StringArray OptionalStringArray::getValues() const { return rep_ ? rep_->values : StringArray(); }

void OptionalStringArray::setValues(const StringArray& values) {
  if (!rep_) rep_ = new Rep;
  rep_->values = values;
}

}  // namespace ORV_v1
