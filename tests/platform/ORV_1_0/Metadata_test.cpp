#include "platform/ORV_1_0/Metadata.h"

#include "tests/support/VirtualTable.h"

namespace {

using ORV_v1::Metadata;

TEST(Metadata, ItsOperationsFollowTheDestructorInTheirOrder) {
  EXPECT_EQ(slotOf(&Metadata::getMetadataValues), 0);
  EXPECT_EQ(slotOf(&Metadata::getMetadataKeys), 1);
  EXPECT_EQ(slotOf(&Metadata::getMetadata), 2);
}

}  // namespace
