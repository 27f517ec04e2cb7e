#include "platform/ORV_1_0/GraphEnums.h"

#include <gtest/gtest.h>

#include <type_traits>

#include "platform/ORV_1_0/Container.h"

namespace {

using ORV_v1::Container;

/// The number that stands for the enumerator wherever modules pass it on.
template <class Enum>
constexpr std::uint32_t number(Enum value) {
  static_assert(std::is_same_v<std::underlying_type_t<Enum>, std::uint32_t>);
  return static_cast<std::uint32_t>(value);
}

TEST(GraphEnums, OfDirections) {
  EXPECT_EQ(number(ORV_v1::PortIOType::kInput), 0u);
  EXPECT_EQ(number(ORV_v1::PortIOType::kOutput), 1u);
}

TEST(GraphEnums, OfInputOutputNodes) {
  EXPECT_EQ(number(ORV_v1::NodeFlags::kInputNode), 8u);
  EXPECT_EQ(number(ORV_v1::NodeFlags::kOutputNode), 16u);
}

TEST(GraphEnums, OfPortFlags) {
  EXPECT_EQ(number(ORV_v1::kPortHidden), 1u);
  EXPECT_EQ(number(ORV_v1::kPortFanIn), 2u);
}

TEST(GraphEnums, OfFlagOperations) {
  EXPECT_EQ(number(ORV_v1::QueryPortFlags::kSet), 1u);
  EXPECT_EQ(number(ORV_v1::QueryPortFlags::kClear), 2u);
}

TEST(GraphEnums, OfSearchTypes) {
  EXPECT_EQ(number(Container::kSearchInput), 0u);
  EXPECT_EQ(number(Container::kSearchOutput), 1u);
  EXPECT_EQ(number(Container::kSearchEither), 2u);
}

TEST(GraphEnums, OfSearchModes) {
  EXPECT_EQ(number(Container::kSearchInner), 0u);
  EXPECT_EQ(number(Container::kSearchOuter), 1u);
}

}  // namespace
