#include "platform/OpenVesk/KStatus.h"

#include <gtest/gtest.h>

namespace {

TEST(KStatus, IsSuccessByDefault) { EXPECT_EQ(KStatus().statusCode(), StatusSuccess); }

TEST(KStatus, KeepsItsCodeWhenCopied) {
  const KStatus status(StatusBadArgument);
  KStatus copy = status;
  EXPECT_EQ(copy.statusCode(), StatusBadArgument);
  copy = StatusFailure;
  EXPECT_EQ(copy.statusCode(), StatusFailure);
  EXPECT_EQ(status.statusCode(), StatusBadArgument);
}

TEST(KStatus, IsTrueForSuccessAlone) {
  EXPECT_TRUE(static_cast<bool>(KStatus(StatusSuccess)));
  EXPECT_FALSE(static_cast<bool>(KStatus(StatusFailure)));
  EXPECT_FALSE(static_cast<bool>(KStatus(StatusBadArgument)));
}

}  // namespace
