// Whose metadata are edited where both faces of a compound's port have one path.

#include "tests/commands/clipboard/WatchPointTesting.h"

namespace {

using testing::IsEmpty;

/// The input node "input" of the compound "group" shows the port "size".
class WatchPointMetadata : public WatchPointTest {
 protected:
  WatchPointMetadata() {
    host.run("orvCompound g /group -addIONode true");
    host.run("orvCompound g /group -movePortToIONode size input");
    host.session().undoQueue().clear();
  }

  static std::string metadataOf(const ORV_v1::AddRefWrapper<ORV_v1::WatchPoint>& found) {
    if (!found) return "no watch point";
    return found->getMetadata().serialize(ORV_v1::PropertyList::kSerializeAll).toChar();
  }
  std::string outside(const char* path) { return metadataOf(watchPoint(path)); }
  std::string inside(const char* path) { return metadataOf(innerWatchPoint(path)); }
};

TEST_F(WatchPointMetadata, OfAnInputOfACompoundTheyAreThoseOfTheOuterFace) {
  run("-create", "/group size");
  run("-create", "/group/input size");
  run("-smd k v", "/group size");
  EXPECT_EQ(outside("/group.size"), "{k=v}");
  EXPECT_EQ(inside("/group.size"), "{}");
}

TEST_F(WatchPointMetadata, OfAnInputNodesPortTheyAreThoseOfTheInnerFace) {
  run("-create", "/group/input size");
  ASSERT_EQ(inside("/group.size"), "{}");
  run("-smd k v", "/group/input size");
  EXPECT_EQ(inside("/group.size"), "{k=v}");
  EXPECT_EQ(outside("/group.size"), "no watch point");
}

/// Its path is that of the compound's port, of which the outer face comes first.
TEST_F(WatchPointMetadata, OfAnInputNodesPortTheyAreThoseOfTheOuterFaceWhereThatIsWatchedToo) {
  run("-create", "/group size");
  run("-create", "/group/input size");
  run("-smd k v", "/group/input size");
  EXPECT_EQ(outside("/group.size"), "{k=v}");
  EXPECT_EQ(inside("/group.size"), "{}");
}

TEST_F(WatchPointMetadata, OfAnInputThatIsWatchedInsideAloneTheyAreThoseOfTheInnerFace) {
  run("-create", "/group/input size");
  run("-smd k v", "/group size");
  EXPECT_EQ(run("-qw", "/group size"), "false") << "everything else is of the outer face";
  EXPECT_EQ(inside("/group.size"), "{k=v}");
}

TEST_F(WatchPointMetadata, OfAnOutputOfACompoundTheyAreThoseOfTheInnerFace) {
  run("-create", "/group out");
  run("-smd k v", "/group out");
  EXPECT_EQ(inside("/group.out"), "{k=v}");
  EXPECT_THAT(refusal("-smd k v", "/group size"), IsEmpty()) << "neither face is watched";
}

}  // namespace
