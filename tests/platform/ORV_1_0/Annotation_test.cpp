#include "platform/ORV_1_0/Annotation.h"

#include "platform/ORV_1_0/Compound.h"
#include "tests/standalone/graph/GraphFixture.h"

namespace {

using orvlib::AnnotationKind;
using orvlib::AnnotationObject;
using orvlib::AnnotationRef;

class AnnotationTest : public orvlib::GraphFixture {
 protected:
  orvlib::InsertAnnotation insertion() { return {{orvlib::CompoundRef(group_), note_, 0}}; }

  std::string value(const char* key) {
    return annotation_.getAnnotationMetaDataValue(key).toChar();
  }

  orvlib::CompoundObject* group_ = addCompound(top(), "group");
  AnnotationRef note_{new AnnotationObject(AnnotationKind::StickyNote, "note")};
  ORV_v1::Annotation& annotation_ = *note_;
};

TEST_F(AnnotationTest, GivesTheCompoundThatHoldsIt) {
  ASSERT_TRUE(edits_.run(insertion()));
  EXPECT_EQ(annotation_.getParentCompound().get(), group_);
}

TEST_F(AnnotationTest, IsInNoCompoundOutOfTheGraph) {
  EXPECT_FALSE(annotation_.getParentCompound());
  orvlib::Transaction edits;
  ASSERT_TRUE(edits.run(insertion()));
  ASSERT_TRUE(edits.revert());
  EXPECT_FALSE(annotation_.getParentCompound());
}

TEST_F(AnnotationTest, TellsItsKind) {
  EXPECT_TRUE(annotation_.isStickyNote());
  const AnnotationRef backdrop(new AnnotationObject(AnnotationKind::Backdrop, "backdrop"));
  EXPECT_FALSE(backdrop->isStickyNote());
}

TEST_F(AnnotationTest, GivesTheValueOfAKey) {
  orvlib::Properties set;
  set.set("color", {"red, dark"});
  set.set("tags", {"a", "b,c"});
  set.set("none", {});
  ASSERT_TRUE(edits_.run(orvlib::SetMetadata{note_, std::move(set)}));
  EXPECT_EQ(value("color"), "red, dark");
  EXPECT_EQ(value("tags"), "{a,b\\,c}");
}

TEST_F(AnnotationTest, GivesAnEmptyValueForAMissingKeyAndForNull) {
  orvlib::Properties set;
  set.set("color", {"red"});
  ASSERT_TRUE(edits_.run(orvlib::SetMetadata{note_, std::move(set)}));
  EXPECT_EQ(value("Color"), "");
  EXPECT_EQ(value(""), "");
  EXPECT_EQ(value(nullptr), "");
}

}  // namespace
