#include "platform/ORV_1_0/StringArray.h"

#include <string>
#include <vector>

namespace ORV_v1 {

struct StringArray::Rep {
  std::vector<std::string> texts;
};

StringArray::StringArray() : rep_(new Rep) {}
StringArray::StringArray(const StringArray& other) : rep_(new Rep(*other.rep_)) {}
StringArray::~StringArray() { delete rep_; }

StringArray& StringArray::operator=(const StringArray& other) {
  *rep_ = *other.rep_;
  return *this;
}

void StringArray::add(const char* text) { rep_->texts.emplace_back(text ? text : ""); }

void StringArray::clear() { rep_->texts.clear(); }

unsigned int StringArray::size() const { return static_cast<unsigned int>(rep_->texts.size()); }

const char* StringArray::operator[](unsigned int index) const {
  return index < rep_->texts.size() ? rep_->texts[index].c_str() : "";
}

ListIterator<StringArray> StringArray::begin() const { return {*this, 0}; }

ListIterator<StringArray> StringArray::end() const { return {*this, size()}; }

}  // namespace ORV_v1
