#include "platform/ORV_1_0/StringArray.h"

#include "standalone/graph/api/GraphAccess.h"
#include "standalone/graph/texts/ListText.h"

namespace ORV_v1 {

constinit const StringArray::SerializationTags StringArray::kDefaultSerializationTags = {
    orvlib::ListTags().open, orvlib::ListTags().close, orvlib::ListTags().separator,
    orvlib::ListTags().escape};

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

String StringArray::serialize(SerializeMode, const SerializationTags& tags) const {
  const orvlib::ListTags listTags{tags.open, tags.close, tags.separator, tags.escape};
  return GraphAccess::makeString(orvlib::writeList(rep_->texts, listTags));
}

StringArray GraphAccess::makeStringArray(std::vector<std::string> texts) {
  StringArray array;
  array.rep_->texts = std::move(texts);
  return array;
}

const std::vector<std::string>& GraphAccess::textsOf(const StringArray& array) {
  return array.rep_->texts;
}

std::vector<std::string>& GraphAccess::textsOf(StringArray& array) { return array.rep_->texts; }

}  // namespace ORV_v1
