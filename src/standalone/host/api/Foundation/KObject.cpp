#include "platform/Foundation/KObject.h"

#include <utility>

#include "standalone/host/engine/HostObject.h"

VESK_API_OPEN

KObject::KObject() = default;

KObject::KObject(const KObject& other) : rep_(other.rep_) {
  if (rep_) ++rep_->references;
}

KObject& KObject::operator=(const KObject& other) {
  KObject copy(other);
  std::swap(rep_, copy.rep_);
  return *this;
}

KObject::~KObject() {
  if (!rep_ || --rep_->references > 0) return;
  // The record goes with the object, if this was the last that kept it.
  const std::shared_ptr<vesk::HostObject> last = std::move(rep_->object);
}

VESK_API_CLOSE
