#include "platform/OpenVesk/KArgList.h"

#include <gtest/gtest.h>

#include "standalone/host/engine/HostAccess.h"

namespace {

KArgList listOf(std::initializer_list<const char*> texts) {
  auto arguments = std::make_shared<vesk::ArgumentArray>();
  for (const char* text : texts) arguments->push_back({KString(text), vesk::TokenKind::Word});
  return HostAccess::argList(std::move(arguments));
}

TEST(KArgList, IsEmptyByDefault) {
  KStatus status = StatusFailure;
  EXPECT_EQ(KArgList().length(&status), 0u);
  EXPECT_TRUE(status);
}

TEST(KArgList, GivesItsArgumentsByIndex) {
  const KArgList list = listOf({"a", "b"});
  KStatus status = StatusFailure;
  EXPECT_EQ(list.length(), 2u);
  EXPECT_STREQ(list.asString(1, &status).asUTF8(), "b");
  EXPECT_TRUE(status);
}

TEST(KArgList, ThereIsNoTextPastTheEnd) {
  KStatus status;
  EXPECT_EQ(listOf({"a"}).asString(1, &status).length(), 0u);
  EXPECT_EQ(status.statusCode(), StatusFailure);
}

TEST(KArgList, ThereIsNoBooleanPastTheEnd) {
  KStatus status;
  EXPECT_FALSE(listOf({"true"}).asBool(1, &status));
  EXPECT_EQ(status.statusCode(), StatusFailure);
}

TEST(KArgList, ReadsBooleans) {
  const KArgList list = listOf({"true", "OFF"});
  KStatus status = StatusFailure;
  EXPECT_TRUE(list.asBool(0, &status));
  EXPECT_TRUE(status);
  status = StatusFailure;
  EXPECT_FALSE(list.asBool(1, &status));
  EXPECT_TRUE(status);
}

TEST(KArgList, ATextThatIsNoBooleanIsABadArgument) {
  KStatus status;
  EXPECT_FALSE(listOf({"maybe"}).asBool(0, &status));
  EXPECT_EQ(status.statusCode(), StatusBadArgument);
}

TEST(KArgList, TheStatusMayBeLeftOut) {
  const KArgList list = listOf({"true"});
  EXPECT_TRUE(list.asBool(0));
  EXPECT_EQ(list.asString(9).length(), 0u);
}

TEST(KArgList, ACopyOutlivesItsOriginal) {
  KArgList copy;
  {
    const KArgList list = listOf({"a", "b"});
    const KArgList middle(list);
    copy = middle;
  }
  EXPECT_EQ(copy.length(), 2u);
  EXPECT_STREQ(copy.asString(0).asUTF8(), "a");
}

TEST(KArgList, AssigningToItselfChangesNothing) {
  KArgList list = listOf({"a"});
  const KArgList& self = list;
  list = self;
  EXPECT_STREQ(list.asString(0).asUTF8(), "a");
}

}  // namespace
