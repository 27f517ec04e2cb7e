#include "platform/ORV_1_0/QtConversions.h"

#include <gtest/gtest.h>

#include "standalone/graph/api/GraphAccess.h"

namespace {

using ORV_v1::fromQStringList;
using ORV_v1::StringArray;
using ORV_v1::toQString;
using ORV_v1::toQStringList;

TEST(QtConversions, TextIsUtf8) {
  EXPECT_EQ(toQString("gr\xc3\xbc\xc3\x9f"), u"grüß"_qs);
  EXPECT_EQ(toQString(ORV_v1::GraphAccess::makeString("日本")), u"日本"_qs);
}

TEST(QtConversions, NullIsEmptyText) {
  const char* const text = nullptr;
  EXPECT_TRUE(toQString(text).isEmpty());
}

TEST(QtConversions, AListComesBackAsItWas) {
  const QStringList list = {u"a"_qs, u""_qs, u"ü, {日本}\n"_qs};
  EXPECT_EQ(toQStringList(fromQStringList(list)), list);
}

TEST(QtConversions, AnEmptyListIsAnEmptyArray) {
  EXPECT_EQ(fromQStringList({}).size(), 0u);
  EXPECT_TRUE(toQStringList(StringArray()).isEmpty());
}

TEST(QtConversions, AListIsStoredAsUtf8) {
  EXPECT_STREQ(fromQStringList({u"ü"_qs})[0], "\xc3\xbc");
}

}  // namespace
