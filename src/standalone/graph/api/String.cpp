#include "platform/ORV_1_0/String.h"

#include "standalone/graph/api/GraphAccess.h"

namespace ORV_v1 {

String::String() = default;
String::String(const String& other) : rep_(other.rep_ ? new Rep(*other.rep_) : nullptr) {}
String::~String() { delete rep_; }

String& String::operator=(const String& other) {
  String copy(other);
  std::swap(rep_, copy.rep_);
  return *this;
}

const char* String::toChar() const { return rep_ ? rep_->text.c_str() : ""; }

bool String::empty() const { return rep_ == nullptr; }

String GraphAccess::makeString(std::string_view text) {
  String string;
  if (!text.empty()) string.rep_ = new String::Rep{std::string(text)};
  return string;
}

}  // namespace ORV_v1
