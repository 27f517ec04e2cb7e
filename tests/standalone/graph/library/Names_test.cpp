#include "standalone/graph/library/Names.h"

#include <gtest/gtest.h>

namespace {

TEST(Names, AnIdentifierIsLettersDigitsAndUnderscores) {
  for (const char* name : {"a", "_", "Add1", "_9", "smooth_step"}) {
    EXPECT_TRUE(orvlib::isIdentifier(name)) << name;
  }
}

TEST(Names, AnythingElseIsNoIdentifier) {
  for (const char* name : {"", "1a", "a b", "a-b", "a::b", "\u00e4", "a.b", "a/b"}) {
    EXPECT_FALSE(orvlib::isIdentifier(name)) << name;
  }
}

TEST(Names, AQualifiedNameIsIdentifiersJoinedByDoubleColons) {
  for (const char* name : {"core", "core::math", "a::b::c"}) {
    EXPECT_TRUE(orvlib::isQualifiedName(name)) << name;
  }
}

TEST(Names, AQualifiedNameHasNoEmptyPart) {
  for (const char* name : {"", "::", "::core", "core::", "a::::b", "a:b", "a:::b"}) {
    EXPECT_FALSE(orvlib::isQualifiedName(name)) << name;
  }
}

TEST(Names, TheParentIsAllButTheLastPart) {
  EXPECT_EQ(orvlib::parentName("a::b::c"), "a::b");
  EXPECT_EQ(orvlib::parentName("core"), "");
}

}  // namespace
