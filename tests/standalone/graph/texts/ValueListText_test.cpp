#include "standalone/graph/texts/ValueListText.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using orvlib::readValues;
using orvlib::ScalarKind;
using orvlib::ValueType;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Optional;

ValueType typeOf(ScalarKind kind, std::vector<std::string> components = {}) {
  ValueType type;
  type.name = "any";
  type.scalar = kind;
  type.components = std::move(components);
  return type;
}

ValueType arrayOf(const ValueType& element) {
  ValueType type = typeOf(element.scalar);
  type.element = std::make_shared<ValueType>(element);
  return type;
}

const ValueType kInteger = typeOf(ScalarKind::Integer);
const ValueType kText = typeOf(ScalarKind::String);
const ValueType kPair = typeOf(ScalarKind::Float, {"x", "y"});

TEST(ValueListText, WithoutATypeIsAnyList) {
  EXPECT_THAT(readValues("{/a,/b c}", nullptr), Optional(ElementsAre("/a", "/b c")));
  EXPECT_THAT(readValues("", nullptr), Optional(IsEmpty()));
}

TEST(ValueListText, WithoutATypeIsStillAList) {
  EXPECT_EQ(readValues("{a", nullptr), std::nullopt);
}

TEST(ValueListText, HasOneTextAComponent) {
  EXPECT_THAT(readValues("{0.5,1e3}", &kPair), Optional(ElementsAre("0.5", "1e3")));
}

TEST(ValueListText, OneComponentNeedsNoBraces) {
  EXPECT_THAT(readValues("3", &kInteger), Optional(ElementsAre("3")));
  EXPECT_THAT(readValues("{3}", &kInteger), Optional(ElementsAre("3")));
}

TEST(ValueListText, AnArrayIsFlat) {
  const ValueType pairs = arrayOf(kPair);
  EXPECT_THAT(readValues("{1,2,3,4}", &pairs), Optional(ElementsAre("1", "2", "3", "4")));
  EXPECT_EQ(readValues("{1,2,3}", &pairs), std::nullopt);
  EXPECT_EQ(readValues("{{1,2},{3,4}}", &pairs), std::nullopt);
}

TEST(ValueListText, AnEmptyArrayIsEmptyTextOrBraces) {
  const ValueType integers = arrayOf(kInteger);
  EXPECT_THAT(readValues("", &integers), Optional(IsEmpty()));
  EXPECT_THAT(readValues("{}", &integers), Optional(IsEmpty()));
}

TEST(ValueListText, RefusesTheWrongCount) {
  EXPECT_EQ(readValues("1", &kPair), std::nullopt);
  EXPECT_EQ(readValues("{1,2,3}", &kPair), std::nullopt);
  EXPECT_EQ(readValues("", &kInteger), std::nullopt);
}

TEST(ValueListText, RefusesTheWrongKind) {
  EXPECT_EQ(readValues("one", &kInteger), std::nullopt);
  EXPECT_EQ(readValues("{1, 2}", &kPair), std::nullopt);
}

TEST(ValueListText, RefusesAMalformedListOfAnyType) {
  EXPECT_EQ(readValues("{1,2", &kPair), std::nullopt);
  EXPECT_EQ(readValues("a\\", &kText), std::nullopt);
}

TEST(ValueListText, ATextTakesBareTextAsItIs) {
  EXPECT_THAT(readValues("Hello, world", &kText), Optional(ElementsAre("Hello, world")));
}

TEST(ValueListText, ATextMayBeEmpty) {
  EXPECT_THAT(readValues("", &kText), Optional(ElementsAre("")));
  EXPECT_THAT(readValues("{,}", &kText), Optional(ElementsAre("")));
}

TEST(ValueListText, EmptyTextIsNotSeveralTexts) {
  const ValueType names = typeOf(ScalarKind::String, {"first", "last"});
  EXPECT_EQ(readValues("", &names), std::nullopt);
  EXPECT_THAT(readValues("{,,}", &names), Optional(ElementsAre("", "")));
}

TEST(ValueListText, NoTextIsNotAText) { EXPECT_EQ(readValues("{}", &kText), std::nullopt); }

TEST(ValueListText, AnArrayOfTextsIsEmptyForEmptyText) {
  const ValueType texts = arrayOf(kText);
  EXPECT_THAT(readValues("", &texts), Optional(IsEmpty()));
  EXPECT_THAT(readValues("{,}", &texts), Optional(ElementsAre("")));
}

}  // namespace
