#include "standalone/graph/types/Value.h"

#include <gtest/gtest.h>

#include <limits>

namespace {

using orvlib::Booleans;
using orvlib::Floats;
using orvlib::Integers;
using orvlib::sameValue;
using orvlib::Texts;
using orvlib::Value;

constexpr float kNan = std::numeric_limits<float>::quiet_NaN();

/// Whether the components lie in the value itself.
template <class Scalars>
bool isInline(const Value& value) {
  const auto* begin = reinterpret_cast<const char*>(&value);
  const auto* first = reinterpret_cast<const char*>(std::get<Scalars>(value).data());
  return first >= begin && first < begin + sizeof(Value);
}

TEST(Value, KeepsFourNumbersAndSixteenBooleansInItself) {
  EXPECT_TRUE(isInline<Floats>(Floats{1}));
  EXPECT_TRUE(isInline<Floats>(Floats{1, 2, 3, 4}));
  EXPECT_TRUE(isInline<Integers>(Integers{1, 2, 3, 4}));
  EXPECT_TRUE(isInline<Booleans>(Booleans(16, true)));
  EXPECT_FALSE(isInline<Floats>(Floats{1, 2, 3, 4, 5}));
}

TEST(Value, IsTheSameWhenEachComponentIs) {
  EXPECT_TRUE(sameValue(Floats{1, 2}, Floats{1, 2}));
  EXPECT_FALSE(sameValue(Floats{1, 2}, Floats{1, 3}));
  EXPECT_TRUE(sameValue(Texts{"a"}, Texts{"a"}));
  EXPECT_FALSE(sameValue(Texts{"a"}, Texts{"b"}));
  EXPECT_FALSE(sameValue(Booleans{true}, Booleans{false}));
  EXPECT_FALSE(sameValue(Integers{1}, Integers{2}));
}

TEST(Value, IsNotTheSameWithAnotherNumberOfComponents) {
  EXPECT_FALSE(sameValue(Floats{1}, Floats{1, 1}));
  EXPECT_FALSE(sameValue(Floats{1, 1}, Floats{1}));
  EXPECT_TRUE(sameValue(Floats{}, Floats{}));
}

TEST(Value, IsNotTheSameInAnotherKind) {
  EXPECT_FALSE(sameValue(Floats{1}, Integers{1}));
  EXPECT_FALSE(sameValue(Floats{}, Integers{}));
}

TEST(Value, IsTheSameWhenBothAreNan) {
  EXPECT_TRUE(sameValue(Floats{1, kNan}, Floats{1, -kNan}));
  EXPECT_FALSE(sameValue(Floats{kNan}, Floats{1}));
  EXPECT_FALSE(sameValue(Floats{1}, Floats{kNan}));
}

TEST(Value, TellsTheZerosApart) { EXPECT_FALSE(sameValue(Floats{0.0F}, Floats{-0.0F})); }

}  // namespace
