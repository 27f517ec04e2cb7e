#include "platform/ORV_1_0/PortProperties.h"

#include <gtest/gtest.h>

namespace {

using ORV_v1::PortProperties;
using ORV_v1::PropertyList;
using ORV_v1::StringArray;
constexpr auto kAll = PropertyList::kSerializeAll;

PortProperties filled() {
  PortProperties properties;
  properties.setFlags(0x80000001u);
  properties.options().unserialize("{a=1}", kAll);
  StringArray values;
  values.add("0.5");
  properties.defaultValues().setValues(values);
  return properties;
}

TEST(PortProperties, SayNothingByDefault) {
  const PortProperties properties;
  EXPECT_EQ(properties.getFlags(), 0u);
  EXPECT_TRUE(properties.options().empty());
  EXPECT_FALSE(properties.defaultValues().isValid());
}

TEST(PortProperties, KeepWhatIsFilledIn) {
  const PortProperties properties = filled();
  EXPECT_EQ(properties.getFlags(), 0x80000001u);
  EXPECT_STREQ(properties.options().serialize(kAll).toChar(), "{a=1}");
  EXPECT_STREQ(properties.defaultValues().getValues()[0], "0.5");
}

TEST(PortProperties, ACopyIsChangedAlone) {
  const PortProperties properties = filled();
  PortProperties copy(properties);
  copy.setFlags(2);
  copy.options().unserialize("", kAll);
  copy.defaultValues().setValues(StringArray());
  EXPECT_EQ(properties.getFlags(), 0x80000001u);
  EXPECT_FALSE(properties.options().empty());
  EXPECT_EQ(properties.defaultValues().getValues().size(), 1u);
  copy = properties;
  EXPECT_EQ(copy.getFlags(), 0x80000001u);
  EXPECT_FALSE(copy.options().empty());
}

}  // namespace
