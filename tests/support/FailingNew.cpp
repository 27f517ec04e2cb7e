#include "tests/support/FailingNew.h"

#include <cstddef>
#include <new>

namespace {

thread_local bool fails = false;

}  // namespace

FailingNew::FailingNew() { fails = true; }

FailingNew::~FailingNew() { fails = false; }

void* operator new(std::size_t size, const std::nothrow_t&) noexcept {
  if (fails) return nullptr;
  try {
    return ::operator new(size);
  } catch (const std::bad_alloc&) {
    return nullptr;
  }
}
