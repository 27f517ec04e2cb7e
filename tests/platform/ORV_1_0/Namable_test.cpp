#include "platform/ORV_1_0/Namable.h"

#include <gtest/gtest.h>

#include "standalone/graph/api/GraphAccess.h"
#include "tests/support/VirtualTable.h"

namespace {

using ORV_v1::GraphAccess;
using ORV_v1::Namable;

/// An object that keeps its name elsewhere, and does not take every name.
class Renamed : public Namable {
 public:
  const char* getName() const override { return name_.c_str(); }
  void appendNodeName(const char*) override {}
  void appendPortName(const char*) override {}
  void setName(const char* name) override { name_ = std::string(name) + "1"; }

 private:
  std::string name_ = "add";
};

TEST(Namable, IsEmptyByDefault) { EXPECT_STREQ(Namable().getName(), ""); }

TEST(Namable, AppendsANodeBelowTheTop) {
  Namable path = GraphAccess::makeNamable("/");
  path.appendNodeName("group");
  EXPECT_STREQ(path.getName(), "/group");
}

TEST(Namable, AppendsANodeBelowANode) {
  Namable path = GraphAccess::makeNamable("/group");
  path.appendNodeName("add1");
  EXPECT_STREQ(path.getName(), "/group/add1");
}

TEST(Namable, AppendsAPort) {
  Namable path = GraphAccess::makeNamable("/group/add1");
  path.appendPortName("result");
  EXPECT_STREQ(path.getName(), "/group/add1.result");
}

TEST(Namable, AppendsAPortOfTheTop) {
  Namable path = GraphAccess::makeNamable("/");
  path.appendPortName("result");
  EXPECT_STREQ(path.getName(), "/.result");
}

TEST(Namable, AnEmptyPathBecomesTheNameAlone) {
  Namable path;
  path.appendPortName("result");
  EXPECT_STREQ(path.getName(), "result");
}

TEST(Namable, ANullOrEmptyNameChangesNothing) {
  Namable path = GraphAccess::makeNamable("/group");
  path.appendNodeName(nullptr);
  path.appendPortName("");
  EXPECT_STREQ(path.getName(), "/group");
}

TEST(Namable, ACopyIsExtendedAlone) {
  const Namable path = GraphAccess::makeNamable("/group");
  Namable copy(path);
  copy.appendNodeName("add1");
  EXPECT_STREQ(path.getName(), "/group");
}

TEST(Namable, AnAssignedCopyIsExtendedAlone) {
  const Namable path = GraphAccess::makeNamable("/group");
  Namable copy;
  copy = path;
  copy.appendNodeName("add1");
  EXPECT_STREQ(path.getName(), "/group");
  EXPECT_STREQ(copy.getName(), "/group/add1");
}

TEST(Namable, IsSetToAnotherText) {
  Namable path = GraphAccess::makeNamable("/group");
  path.setName("add1");
  EXPECT_STREQ(path.getName(), "add1");
}

TEST(Namable, NullSetsItToEmptyText) {
  Namable path = GraphAccess::makeNamable("/group");
  path.setName(nullptr);
  EXPECT_STREQ(path.getName(), "");
}

TEST(Namable, IsSetToAPieceOfItsOwnText) {
  Namable path = GraphAccess::makeNamable("/group/of/a/name/that/needs/memory");
  path.setName(path.getName() + 7);
  EXPECT_STREQ(path.getName(), "of/a/name/that/needs/memory");
}

TEST(Namable, IsExtendedByAPieceOfItsOwnText) {
  Namable path = GraphAccess::makeNamable("/group");
  path.appendNodeName(path.getName() + 1);
  EXPECT_STREQ(path.getName(), "/group/group");
}

TEST(Namable, IsAssignedToItself) {
  Namable path = GraphAccess::makeNamable("/group");
  const Namable& same = path;
  path = same;
  EXPECT_STREQ(path.getName(), "/group");
}

TEST(Namable, ACopyOfAnObjectsPartHasTheObjectsName) {
  const Renamed object;
  Namable copy = object;
  EXPECT_STREQ(copy.getName(), "add");
  copy.appendPortName("result");
  EXPECT_STREQ(copy.getName(), "add.result");
}

TEST(Namable, TakesOverAnObjectsNameByAssignment) {
  Namable value = GraphAccess::makeNamable("/group");
  value = Renamed();
  EXPECT_STREQ(value.getName(), "add");
}

TEST(Namable, AssigningToAnObjectsPartRenamesTheObject) {
  Renamed object;
  static_cast<Namable&>(object) = GraphAccess::makeNamable("sum");
  EXPECT_STREQ(object.getName(), "sum1");
}

TEST(Namable, ItsOperationsFollowTheDestructorInTheirOrder) {
  EXPECT_EQ(slotOf(&Namable::getName), 0);
  EXPECT_EQ(slotOf(&Namable::appendNodeName), 1);
  EXPECT_EQ(slotOf(&Namable::appendPortName), 2);
  EXPECT_EQ(slotOf(&Namable::setName), 3);
}

}  // namespace
