#include "platform/OpenVesk/KStringArray.h"

#include <cstdlib>
#include <iostream>
#include <vector>

VESK_API_OPEN

struct KStringArray::Rep {
  std::vector<KString> elements;

  KString& at(unsigned int index) {
    if (index >= elements.size()) {
      std::cerr << "KStringArray: index " << index << " of an array of length " << elements.size()
                << std::endl;
      std::abort();
    }
    return elements[index];
  }
};

KStringArray::KStringArray() : rep_(new Rep) {}

KStringArray::KStringArray(const KStringArray& other) : rep_(new Rep(*other.rep_)) {}

KStringArray& KStringArray::operator=(const KStringArray& other) {
  *rep_ = *other.rep_;
  return *this;
}

KStringArray::~KStringArray() { delete rep_; }

KStatus KStringArray::append(const KString& element) {
  rep_->elements.push_back(element);
  return StatusSuccess;
}

unsigned int KStringArray::length() const {
  return static_cast<unsigned int>(rep_->elements.size());
}

KStatus KStringArray::setLength(unsigned int length) {
  rep_->elements.resize(length);
  return StatusSuccess;
}

KString& KStringArray::operator[](unsigned int index) { return rep_->at(index); }

KString KStringArray::operator[](unsigned int index) const { return rep_->at(index); }

KStringArray::Iterator KStringArray::begin() const { return {*this, 0}; }

KStringArray::Iterator KStringArray::end() const { return {*this, length()}; }

VESK_API_CLOSE
