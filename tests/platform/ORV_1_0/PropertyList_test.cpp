#include "platform/ORV_1_0/PropertyList.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "standalone/graph/api/GraphAccess.h"

namespace {

using ORV_v1::GraphAccess;
using ORV_v1::PropertyList;
constexpr auto kAll = PropertyList::kSerializeAll;

PropertyList read(const char* text) {
  PropertyList list;
  EXPECT_TRUE(list.unserialize(text, kAll)) << text;
  return list;
}

std::string written(const PropertyList& list) { return list.serialize(kAll).toChar(); }

TEST(PropertyList, HasTheModeThatCallersPass) {
  EXPECT_EQ(static_cast<PropertyList::SerializeMode>(0), kAll);
}

TEST(PropertyList, IsEmptyByDefault) {
  const PropertyList list;
  EXPECT_TRUE(list.empty());
  EXPECT_EQ(written(list), "{}");
}

TEST(PropertyList, IsReadFromTheTextThatItWrites) {
  const char* const text = R"({color=dark red,tags={a,b\,c},note={,}})";
  EXPECT_FALSE(read(text).empty());
  EXPECT_EQ(written(read(text)), text);
}

TEST(PropertyList, ReadingReplacesWhatWasThere) {
  PropertyList list = read("{a=1,b=2}");
  EXPECT_TRUE(list.unserialize("{c=3}", kAll));
  EXPECT_EQ(written(list), "{c=3}");
}

TEST(PropertyList, EmptyTextAndBracesEmptyIt) {
  for (const char* text : {"", "{}"}) {
    PropertyList list = read("{a=1}");
    EXPECT_TRUE(list.unserialize(text, kAll));
    EXPECT_TRUE(list.empty());
  }
}

TEST(PropertyList, MalformedTextChangesNothing) {
  PropertyList list = read("{a=1}");
  for (const char* text : {"b=2", "{b=2", "{b=2,b=3}", "{b}"}) {
    EXPECT_FALSE(list.unserialize(text, kAll)) << text;
  }
  EXPECT_FALSE(list.unserialize(nullptr, kAll));
  EXPECT_EQ(written(list), "{a=1}");
}

TEST(PropertyList, ACopyIsChangedAlone) {
  const PropertyList list = read("{a=1}");
  PropertyList copy(list);
  copy.unserialize("{b=2}", kAll);
  EXPECT_EQ(written(list), "{a=1}");
  copy = list;
  EXPECT_EQ(written(copy), "{a=1}");
  const PropertyList& self = copy;
  copy = self;
  EXPECT_EQ(written(copy), "{a=1}");
}

TEST(PropertyList, ShowsItsPropertiesToTheLibrary) {
  orvlib::Properties properties;
  properties.set("a", {"1", "2"});
  const PropertyList list = GraphAccess::makePropertyList(properties);
  EXPECT_EQ(GraphAccess::propertiesOf(list), properties);
  EXPECT_TRUE(GraphAccess::propertiesOf(PropertyList()).empty());
}

}  // namespace
