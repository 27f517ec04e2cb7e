#include "platform/Foundation/KObject.h"

#include <utility>

#include "standalone/host/engine/HostObject.h"

VESK_API_OPEN

KObject::KObject() = default;

KObject::KObject(const KObject& other) : rep_(other.rep_ ? new Rep(*other.rep_) : nullptr) {}

KObject& KObject::operator=(const KObject& other) {
  KObject copy(other);
  std::swap(rep_, copy.rep_);
  return *this;
}

KObject::~KObject() { delete rep_; }

VESK_API_CLOSE
