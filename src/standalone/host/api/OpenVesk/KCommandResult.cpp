#include "platform/OpenVesk/KCommandResult.h"

#include <climits>

#include "standalone/host/engine/HostAccess.h"

VESK_API_OPEN

struct KCommandResult::Rep {
  vesk::ResultValue value;
};

vesk::ResultValue& HostAccess::value(KCommandResult& result) { return result.rep_->value; }

KCommandResult::KCommandResult(KStatus* status) : rep_(new Rep) {
  if (status) *status = StatusSuccess;
}

KCommandResult::~KCommandResult() { delete rep_; }

KCommandResult::Type KCommandResult::resultType(KStatus* status) const {
  constexpr Type kTypes[] = {kNone, kBool, kInt, kUnsigned, kDouble, kString, kStringArray};
  if (status) *status = StatusSuccess;
  return kTypes[rep_->value.index()];
}

KStatus KCommandResult::getResult(int& value) const {
  if (const int* integer = std::get_if<int>(&rep_->value)) {
    value = *integer;
  } else if (const bool* boolean = std::get_if<bool>(&rep_->value)) {
    value = *boolean;
  } else if (const auto* natural = std::get_if<unsigned int>(&rep_->value);
             natural && *natural <= INT_MAX) {
    value = static_cast<int>(*natural);
  } else {
    return StatusFailure;
  }
  return StatusSuccess;
}

KStatus KCommandResult::getResult(KString& value) const {
  const std::string* text = std::get_if<std::string>(&rep_->value);
  if (!text) return StatusFailure;
  value = HostAccess::string(*text);
  return StatusSuccess;
}

KStatus KCommandResult::getResult(KStringArray& value) const {
  const auto* texts = std::get_if<std::vector<std::string>>(&rep_->value);
  if (!texts) return StatusFailure;
  value = HostAccess::stringArray(*texts);
  return StatusSuccess;
}

VESK_API_CLOSE
