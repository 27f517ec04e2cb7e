#include "platform/ORV_1_0/NewPortHints.h"

#include <gtest/gtest.h>

namespace {

using ORV_v1::NewPortHints;
using ORV_v1::PortProperties;
using ORV_v1::String;

TEST(NewPortHints, AnAbsentTextGivesAPointerToEmptyText) {
  const NewPortHints hints;
  const String* name = nullptr;
  const String* type = nullptr;
  EXPECT_FALSE(hints.nameHint(name));
  EXPECT_FALSE(hints.typeHint(type));
  ASSERT_TRUE(name && type);
  EXPECT_TRUE(name->empty());
  EXPECT_TRUE(type->empty());
}

TEST(NewPortHints, AbsentPropertiesGiveNull) {
  const PortProperties other;
  const PortProperties* properties = &other;
  EXPECT_FALSE(NewPortHints().propertiesHint(properties));
  EXPECT_EQ(properties, nullptr);
}

TEST(NewPortHints, GiveTheTextsThatWereSet) {
  NewPortHints hints;
  hints.setNameHint("result");
  hints.setTypeHint("float");
  const String* name = nullptr;
  const String* type = nullptr;
  EXPECT_TRUE(hints.nameHint(name));
  EXPECT_TRUE(hints.typeHint(type));
  EXPECT_STREQ(name->toChar(), "result");
  EXPECT_STREQ(type->toChar(), "float");
}

TEST(NewPortHints, EmptyTextIsAHint) {
  NewPortHints hints;
  hints.setNameHint("");
  const String* name = nullptr;
  EXPECT_TRUE(hints.nameHint(name));
  EXPECT_TRUE(name->empty());
}

TEST(NewPortHints, NullTakesAHintBack) {
  NewPortHints hints;
  hints.setTypeHint("float");
  hints.setTypeHint(nullptr);
  const String* type = nullptr;
  EXPECT_FALSE(hints.typeHint(type));
  EXPECT_TRUE(type->empty());
}

TEST(NewPortHints, GiveTheirOwnCopyOfTheProperties) {
  PortProperties wished;
  wished.setFlags(4);
  NewPortHints hints;
  hints.setPropertiesHint(wished);
  wished.setFlags(8);
  const PortProperties* properties = nullptr;
  ASSERT_TRUE(hints.propertiesHint(properties));
  EXPECT_EQ(properties->getFlags(), 4u);
}

TEST(NewPortHints, ACopyIsChangedAlone) {
  NewPortHints hints;
  hints.setNameHint("a");
  NewPortHints copy(hints);
  copy.setNameHint("b");
  const String* name = nullptr;
  hints.nameHint(name);
  EXPECT_STREQ(name->toChar(), "a");
  hints = copy;
  hints.nameHint(name);
  EXPECT_STREQ(name->toChar(), "b");
}

}  // namespace
