#include "platform/ORV_1_0/WatchPoint.h"

#include "tests/support/VirtualTable.h"

namespace {

using ORV_v1::WatchPoint;

TEST(WatchPoint, ItsOperationsFollowTheDestructorInTheirOrder) {
  EXPECT_EQ(slotOf(&WatchPoint::isEnabled), 0);
  EXPECT_EQ(slotOf(&WatchPoint::getParameterNames), 1);
  EXPECT_EQ(slotOf(&WatchPoint::getParameterValues), 2);
  EXPECT_EQ(slotOf(&WatchPoint::getParameterDescription), 3);
  EXPECT_EQ(slotOf(&WatchPoint::getParameterValueDescription), 4);
  EXPECT_EQ(slotOf(&WatchPoint::getParameterValue), 5);
  EXPECT_EQ(slotOf(&WatchPoint::getRecordNames), 6);
  EXPECT_EQ(slotOf(&WatchPoint::clearRecordedValues), 7);
  EXPECT_EQ(slotOf(&WatchPoint::getRecordedValues), 8);
}

}  // namespace
