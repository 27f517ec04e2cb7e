#pragma once

#include <gtest/gtest.h>

#include <array>
#include <bit>
#include <cstddef>

/// The slot that a virtual operation has behind the two of the destructor, counted from 0. On this
/// platform a pointer to a virtual member is its offset in the table plus one.
template <class Operation>
std::ptrdiff_t slotOf(Operation operation) {
  const auto parts = std::bit_cast<std::array<std::ptrdiff_t, 2>>(operation);
  EXPECT_EQ(parts[0] % 2, 1) << "it is not virtual";
  return (parts[0] - 1) / static_cast<std::ptrdiff_t>(sizeof(void*)) - 2;
}
