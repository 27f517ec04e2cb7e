#include "platform/OpenVesk/KStringArray.h"

#include <cstdlib>
#include <iostream>
#include <utility>
#include <vector>

VESK_API_OPEN

struct KStringArray::Rep {
  std::vector<KString> elements;
};

namespace {

void requireIndex(unsigned int index, unsigned int length) {
  if (index < length) return;
  std::cerr << "KStringArray: index " << index << " of an array of length " << length << std::endl;
  std::abort();
}

}  // namespace

KStringArray::KStringArray() = default;

KStringArray::KStringArray(const KStringArray& other)
    : rep_(other.length() > 0 ? new Rep(*other.rep_) : nullptr) {}

KStringArray& KStringArray::operator=(const KStringArray& other) {
  KStringArray copy(other);
  std::swap(rep_, copy.rep_);
  return *this;
}

KStringArray::~KStringArray() { delete rep_; }

KStatus KStringArray::append(const KString& element) {
  if (!rep_) rep_ = new Rep;
  rep_->elements.push_back(element);
  return StatusSuccess;
}

unsigned int KStringArray::length() const {
  return rep_ ? static_cast<unsigned int>(rep_->elements.size()) : 0;
}

KStatus KStringArray::setLength(unsigned int length) {
  if (length == 0 && !rep_) return StatusSuccess;
  if (!rep_) rep_ = new Rep;
  rep_->elements.resize(length);
  return StatusSuccess;
}

KString& KStringArray::operator[](unsigned int index) {
  requireIndex(index, length());
  return rep_->elements[index];
}

KString KStringArray::operator[](unsigned int index) const {
  requireIndex(index, length());
  return rep_->elements[index];
}

KStringArray::Iterator KStringArray::begin() const { return {*this, 0}; }

KStringArray::Iterator KStringArray::end() const { return {*this, length()}; }

VESK_API_CLOSE
