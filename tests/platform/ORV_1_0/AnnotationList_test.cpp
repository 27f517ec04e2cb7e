#include "platform/ORV_1_0/AnnotationList.h"

#include "standalone/graph/model/AnnotationObject.h"
#include "tests/standalone/graph/GraphFixture.h"

namespace {

using ORV_v1::AddRefWrapper;
using ORV_v1::Annotation;
using ORV_v1::AnnotationList;

AddRefWrapper<Annotation> note(const char* name) {
  return AddRefWrapper<Annotation>(
      new orvlib::AnnotationObject(orvlib::AnnotationKind::StickyNote, name));
}

std::string names(const AnnotationList& list) {
  std::string text;
  for (const AddRefWrapper<Annotation>& annotation : list) text += annotation->getName();
  return text;
}

class AnnotationListTest : public testing::Test {
 protected:
  AddRefWrapper<AnnotationList> list_ = AnnotationList::createNew();
};

TEST_F(AnnotationListTest, IsEmptyAtFirstAndAnother) {
  ASSERT_TRUE(list_);
  EXPECT_EQ(list_->size(), 0u);
  EXPECT_NE(AnnotationList::createNew().get(), list_.get());
}

TEST_F(AnnotationListTest, IsWalkedInTheOrderOfAdding) {
  EXPECT_EQ(names(*list_), "");
  EXPECT_TRUE(list_->add(note("b")));
  EXPECT_TRUE(list_->add(note("a")));
  EXPECT_TRUE(list_->add(note("b")));
  EXPECT_EQ(names(*list_), "bab");
}

TEST_F(AnnotationListTest, GivesEachByItsIndexAndNullPastTheEnd) {
  const auto first = note("a");
  const auto second = note("b");
  list_->add(first);
  list_->add(second);
  EXPECT_EQ((*list_)[0].get(), first.get());
  EXPECT_EQ((*list_)[1].get(), second.get());
  EXPECT_FALSE((*list_)[2]);
}

TEST_F(AnnotationListTest, TakesNoNullHandleAndNothingTwice) {
  const auto first = note("a");
  EXPECT_FALSE(list_->add({}));
  ASSERT_TRUE(list_->add(first));
  EXPECT_FALSE(list_->add(first));
  EXPECT_EQ(list_->size(), 1u);
}

class AnnotationsOfACompound : public orvlib::GraphFixture {
 protected:
  AnnotationList& list_ = top().getAnnotations();
};

TEST_F(AnnotationsOfACompound, TakeNothingFromACaller) {
  EXPECT_FALSE(list_.add(note("a")));
  EXPECT_EQ(list_.size(), 0u);
}

TEST_F(AnnotationsOfACompound, AreWalkedInOrder) {
  for (const char* name : {"b", "a"}) {
    const orvlib::AnnotationRef made(
        new orvlib::AnnotationObject(orvlib::AnnotationKind::Backdrop, name));
    edits_.run(
        orvlib::InsertAnnotation{{orvlib::CompoundRef(&top()), made, top().annotations().count()}});
  }
  EXPECT_EQ(names(list_), "ba");
}

}  // namespace
