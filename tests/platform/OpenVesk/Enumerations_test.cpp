#include <gtest/gtest.h>

#include "platform/OpenVesk/KCommandResult.h"
#include "platform/OpenVesk/KSceneMessage.h"
#include "platform/OpenVesk/KStatus.h"
#include "platform/OpenVesk/KSyntax.h"

// Modules that were built long ago hold these numbers.

namespace {

TEST(Enumerations, StatusCodes) {
  EXPECT_EQ(static_cast<int>(StatusSuccess), 0);
  EXPECT_EQ(static_cast<int>(StatusFailure), 1);
  EXPECT_EQ(static_cast<int>(StatusBadArgument), 3);
}

TEST(Enumerations, ArgumentTypes) {
  EXPECT_EQ(static_cast<int>(KSyntax::ArgNone), 1);
  EXPECT_EQ(static_cast<int>(KSyntax::ArgBoolean), 2);
  EXPECT_EQ(static_cast<int>(KSyntax::ArgInteger), 3);
  EXPECT_EQ(static_cast<int>(KSyntax::ArgString), 5);
  EXPECT_EQ(static_cast<int>(KSyntax::ArgUnsigned), 6);
}

TEST(Enumerations, SceneMessages) { EXPECT_EQ(static_cast<int>(KSceneMessage::kExiting), 30); }

TEST(Enumerations, ResultTypes) {
  EXPECT_EQ(static_cast<int>(KCommandResult::kNone), 0);
  EXPECT_EQ(static_cast<int>(KCommandResult::kStringArray), 8);
}

}  // namespace
