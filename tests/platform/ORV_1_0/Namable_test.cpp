#include "platform/ORV_1_0/Namable.h"

#include <gtest/gtest.h>

#include "standalone/graph/api/GraphAccess.h"

namespace {

using ORV_v1::GraphAccess;
using ORV_v1::Namable;

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

}  // namespace
