#include "platform/ORV_1_0/String.h"

#include <string>

namespace ORV_v1 {

struct String::Rep {
  std::string text;
};

String::String() : rep_(new Rep) {}
String::String(const String& other) : rep_(new Rep(*other.rep_)) {}
String::~String() { delete rep_; }

String& String::operator=(const String& other) {
  *rep_ = *other.rep_;
  return *this;
}

const char* String::toChar() const { return rep_->text.c_str(); }

bool String::empty() const { return rep_->text.empty(); }

}  // namespace ORV_v1
