#include "platform/ORV_1_0/ModifyCompoundAnnotationCommand.h"

#include "tests/standalone/graph/commands/CommandFixture.h"

namespace orvlib {
namespace {

class ModifyCompoundAnnotationCommandTest : public CommandFixture {
 protected:
  ModifyCompoundAnnotationCommandTest() { command_.setParentCompound(&graph_, "/"); }

  ORV_v1::ModifyCompoundAnnotationCommand command_;
};

TEST_F(ModifyCompoundAnnotationCommandTest, CreatesBothKindsWithFreeNames) {
  const std::string before = text();
  ASSERT_TRUE(command_.createBackdrop("note"));
  ASSERT_TRUE(command_.createStickyNote());
  EXPECT_EQ(text(), before);
  ASSERT_TRUE(command_.redo());
  EXPECT_FALSE(top().annotations().find("note")->isStickyNote());
  EXPECT_TRUE(top().annotations().find("note1")->isStickyNote());
  expectReversible(command_, before);
}

TEST_F(ModifyCompoundAnnotationCommandTest, RemovesWhatItMade) {
  const std::string before = text();
  command_.createBackdrop("a");
  command_.deleteAnnotation("a");
  ASSERT_TRUE(command_.redo());
  EXPECT_EQ(text(), before);
  EXPECT_EQ(top().annotations().count(), 0u);
}

TEST_F(ModifyCompoundAnnotationCommandTest, RenamesAndSetsMetadata) {
  command_.createBackdrop("a");
  command_.createBackdrop("b");
  command_.renameAnnotation("a", "b");
  command_.setAnnotationMetaDataValue("b1", "color", "red");
  command_.setAnnotationMetaDataValue("b1", "size", "2");
  command_.setAnnotationMetaDataValue("b1", "size", "");
  const std::string before = text();
  ASSERT_TRUE(command_.redo());
  AnnotationObject* renamed = top().annotations().find("b1");
  ASSERT_NE(renamed, nullptr);
  EXPECT_STREQ(renamed->getAnnotationMetaDataValue("color").toChar(), "red");
  EXPECT_EQ(renamed->metadata().find("size"), nullptr);
  expectReversible(command_, before);
}

TEST_F(ModifyCompoundAnnotationCommandTest, PassesOverWhatIsNotThere) {
  const std::string before = text();
  command_.deleteAnnotation("none");
  command_.renameAnnotation("none", "x");
  command_.setAnnotationMetaDataValue("none", "k", "v");
  EXPECT_TRUE(command_.redo());
  EXPECT_EQ(text(), before);
}

TEST_F(ModifyCompoundAnnotationCommandTest, RefusesEmptyNames) {
  EXPECT_FALSE(command_.deleteAnnotation(""));
  EXPECT_FALSE(command_.renameAnnotation("a", nullptr));
  EXPECT_FALSE(command_.setAnnotationMetaDataValue("a", "", "v"));
}

}  // namespace
}  // namespace orvlib
