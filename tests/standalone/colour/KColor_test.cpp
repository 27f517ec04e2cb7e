#include "platform/OpenVeskRender/KColor.h"

#include <gtest/gtest.h>

#include <cstring>

TEST(KColor, IsFourFloatsInTheOrderRedGreenBlueAlpha) {
  const KColor colour(0.1f, 0.2f, 0.3f, 0.4f);
  const float expected[] = {0.1f, 0.2f, 0.3f, 0.4f};
  ASSERT_EQ(sizeof expected, sizeof colour);
  EXPECT_EQ(0, std::memcmp(&colour, expected, sizeof colour));
}

TEST(KColor, IsOpaqueBlackWhenDefaultBuilt) { EXPECT_EQ(KColor(0, 0, 0, 1), KColor()); }

TEST(KColor, IsOpaqueWhenNoAlphaIsGiven) { EXPECT_EQ(1.0f, KColor(1, 2, 3).a); }
