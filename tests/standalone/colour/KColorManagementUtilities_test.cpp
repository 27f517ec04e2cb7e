#include "platform/OpenVeskRender/KColorManagementUtilities.h"

#include <gtest/gtest.h>

#include "standalone/colour/ColourService.h"

namespace {

using vesk::colour::ColourService;

bool isOn() { return KColorManagementUtilities::isColorManagementEnabled(); }

TEST(KColorManagementUtilities, IsOffWithoutAService) { EXPECT_FALSE(isOn()); }

TEST(KColorManagementUtilities, IsOnWithAService) {
  const ColourService service;
  EXPECT_TRUE(isOn());
}

TEST(KColorManagementUtilities, FollowsTheService) {
  ColourService service({.enabled = false});
  EXPECT_FALSE(isOn());
  service.setEnabled(true);
  EXPECT_TRUE(isOn());
}

TEST(KColorManagementUtilities, IsOffWhenTheServiceHasGone) {
  { const ColourService service; }
  EXPECT_FALSE(isOn());
}

}  // namespace
