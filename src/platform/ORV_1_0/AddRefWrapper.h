#pragma once

#include <cstddef>
#include <utility>

namespace ORV_v1 {

/// A handle that owns one reference to a `ReferenceCounted` object. A null handle means "not
/// found": test a handle before the first use of its pointer.
template <class T>
class AddRefWrapper {
 public:
  AddRefWrapper() = default;
  explicit AddRefWrapper(T* object) : object_(object) {
    if (object_) object_->addRef();
  }
  AddRefWrapper(const AddRefWrapper& other) : AddRefWrapper(other.object_) {}
  AddRefWrapper(AddRefWrapper&& other) noexcept : object_(std::exchange(other.object_, nullptr)) {}
  ~AddRefWrapper() {
    if (object_) object_->release();
  }

  /// By value: the old object is released only after the new one is held.
  AddRefWrapper& operator=(AddRefWrapper other) noexcept {
    std::swap(object_, other.object_);
    return *this;
  }

  T* get() const { return object_; }
  T* operator->() const { return object_; }
  T& operator*() const { return *object_; }

  explicit operator bool() const { return object_ != nullptr; }
  bool operator==(std::nullptr_t) const { return object_ == nullptr; }

 private:
  T* object_ = nullptr;
};

}  // namespace ORV_v1
