#pragma once

#include <dlfcn.h>
#include <gtest/gtest.h>

/// The library's own definition of the operation of that symbol, for a test program whose
/// definition comes ahead of it. For an operation of an object, the object is the first argument.
template <class Result, class... Arguments>
auto libraryOperation(const char* symbol) {
  void* found = dlsym(RTLD_NEXT, symbol);
  if (!found) ADD_FAILURE() << "no library has " << symbol;
  return reinterpret_cast<Result (*)(Arguments...)>(found);
}
