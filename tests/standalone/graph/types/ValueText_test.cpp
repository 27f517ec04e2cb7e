#include "standalone/graph/types/ValueText.h"
#include "testPaths.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <clocale>
#include <cmath>
#include <limits>

namespace {

using orvlib::parseValue;
using orvlib::printValue;
using orvlib::ScalarKind;
using orvlib::Value;
using orvlib::ValueType;
using testing::ElementsAre;
using testing::HasSubstr;
using Texts = std::vector<std::string>;

ValueType scalarType(ScalarKind kind) {
  ValueType type;
  type.name = orvlib::toText(kind);
  type.scalar = kind;
  return type;
}

ValueType pairType() {
  ValueType type = scalarType(ScalarKind::Float);
  type.name = "pair";
  type.components = {"x", "y"};
  return type;
}

ValueType arrayOf(const ValueType& element) {
  ValueType type = scalarType(element.scalar);
  type.name = "array<" + element.name + ">";
  type.element = std::make_shared<ValueType>(element);
  return type;
}

Texts roundTrip(const ValueType& type, const Texts& texts) {
  const auto parsed = parseValue(type, texts);
  return parsed.value ? printValue(*parsed.value) : Texts{"refused: " + parsed.reason};
}

std::string refusal(const ValueType& type, const Texts& texts) {
  const auto parsed = parseValue(type, texts);
  return parsed.value ? "accepted" : parsed.reason;
}

TEST(ValueText, ReadsTrueAndFalse) {
  EXPECT_THAT(roundTrip(arrayOf(scalarType(ScalarKind::Boolean)), {"true", "false"}),
              ElementsAre("true", "false"));
}

TEST(ValueText, RefusesAnyOtherTextForABoolean) {
  EXPECT_EQ(refusal(scalarType(ScalarKind::Boolean), {"True"}),
            "'True' is neither true nor false (type 'boolean')");
}

TEST(ValueText, ReadsTheLimitsOfAnInteger) {
  EXPECT_THAT(roundTrip(arrayOf(scalarType(ScalarKind::Integer)), {"-2147483648", "2147483647"}),
              ElementsAre("-2147483648", "2147483647"));
}

TEST(ValueText, RefusesAnIntegerBeyondItsLimits) {
  EXPECT_EQ(refusal(scalarType(ScalarKind::Integer), {"2147483648"}),
            "'2147483648' is out of range (type 'integer')");
}

TEST(ValueText, RefusesAFractionForAnInteger) {
  EXPECT_EQ(refusal(scalarType(ScalarKind::Integer), {"1.5"}),
            "'1.5' is not a whole number (type 'integer')");
}

TEST(ValueText, PrintsAFloatWithTheFewestDigits) {
  EXPECT_THAT(
      roundTrip(arrayOf(scalarType(ScalarKind::Float)), {"0.10", "1e3", "-0", "0.333333333"}),
      ElementsAre("0.1", "1000", "-0", "0.33333334"));
}

TEST(ValueText, EachFloatComesBackBitForBit) {
  const orvlib::Floats floats{0.1F, -0.0F, 1.0F / 3.0F, std::numeric_limits<float>::max(),
                              std::numeric_limits<float>::denorm_min()};
  const auto parsed = parseValue(arrayOf(scalarType(ScalarKind::Float)), printValue(Value(floats)));
  ASSERT_TRUE(parsed.value);
  const auto& back = std::get<orvlib::Floats>(*parsed.value);
  for (std::size_t i = 0; i < floats.size(); ++i) {
    EXPECT_EQ(std::signbit(back[i]), std::signbit(floats[i]));
    EXPECT_EQ(back[i], floats[i]);
  }
}

TEST(ValueText, ReadsWhatArithmeticCanGive) {
  EXPECT_THAT(roundTrip(arrayOf(scalarType(ScalarKind::Float)), {"inf", "-inf", "nan"}),
              ElementsAre("inf", "-inf", "nan"));
}

TEST(ValueText, RefusesAFloatThatIsTooLarge) {
  EXPECT_EQ(refusal(scalarType(ScalarKind::Float), {"1e99"}),
            "'1e99' is out of range (type 'float')");
}

TEST(ValueText, RefusesTextAroundANumber) {
  for (const char* text : {"", " 1", "1 ", "1,5", "0x10", "1f", "+1"}) {
    EXPECT_THAT(refusal(scalarType(ScalarKind::Float), {text}), HasSubstr("is not a number"))
        << text;
  }
}

TEST(ValueText, IgnoresTheLocaleInForce) {
  setenv("LOCPATH", VESK_BUILD_DIR "/locale", 1);
  ASSERT_NE(std::setlocale(LC_ALL, "de_DE.UTF-8"), nullptr);
  EXPECT_STREQ(localeconv()->decimal_point, ",");
  EXPECT_THAT(roundTrip(scalarType(ScalarKind::Float), {"1.5"}), ElementsAre("1.5"));
  std::setlocale(LC_ALL, "C");
  unsetenv("LOCPATH");
}

TEST(ValueText, AStringIsItsOwnText) {
  EXPECT_THAT(roundTrip(scalarType(ScalarKind::String), {" a,{b}\n\"\u00e4\" "}),
              ElementsAre(" a,{b}\n\"\u00e4\" "));
}

TEST(ValueText, TakesOneTextAComponent) {
  EXPECT_THAT(roundTrip(pairType(), {"1", "2"}), ElementsAre("1", "2"));
}

TEST(ValueText, RefusesTooFewOrTooManyComponents) {
  EXPECT_EQ(refusal(pairType(), {"1"}), "type 'pair' takes 2 values, not 1");
  EXPECT_EQ(refusal(scalarType(ScalarKind::Float), {"1", "2"}),
            "type 'float' takes 1 value, not 2");
}

TEST(ValueText, AnArrayTakesAnyWholeNumberOfElements) {
  EXPECT_THAT(roundTrip(arrayOf(pairType()), {"1", "2", "3", "4"}),
              ElementsAre("1", "2", "3", "4"));
  EXPECT_THAT(roundTrip(arrayOf(pairType()), {}), ElementsAre());
}

TEST(ValueText, RefusesAnArrayWhoseLastElementIsIncomplete) {
  EXPECT_EQ(refusal(arrayOf(pairType()), {"1", "2", "3"}),
            "type 'array<pair>' takes a multiple of 2 values, not 3");
}

TEST(ValueText, TheZeroValueFitsItsType) {
  EXPECT_THAT(printValue(zeroValue(pairType())), ElementsAre("0", "0"));
  EXPECT_THAT(printValue(zeroValue(scalarType(ScalarKind::Boolean))), ElementsAre("false"));
  EXPECT_THAT(printValue(zeroValue(scalarType(ScalarKind::String))), ElementsAre(""));
  EXPECT_THAT(printValue(zeroValue(arrayOf(pairType()))), ElementsAre());
}

TEST(ValueText, FloatsInAForm) {
  using orvlib::FloatForm;
  const auto shown = [](float number, FloatForm form) {
    return printValue(orvlib::Floats{number}, form).front();
  };
  EXPECT_EQ(shown(0.1F, {FloatForm::Style::Shortest, 2}), "0.1");
  EXPECT_EQ(shown(0.1F, {FloatForm::Style::Fixed, 2}), "0.10");
  EXPECT_EQ(shown(0.1F, {FloatForm::Style::Fixed, 0}), "0");
  EXPECT_EQ(shown(-1234.5F, {FloatForm::Style::Scientific, 2}), "-1.23e+03");
  EXPECT_EQ(shown(0.1F, {FloatForm::Style::Fixed, 12}), "0.100000001490");
  for (const auto style : {FloatForm::Style::Fixed, FloatForm::Style::Scientific}) {
    EXPECT_EQ(shown(std::numeric_limits<float>::infinity(), {style, 3}), "inf");
    EXPECT_EQ(shown(std::numeric_limits<float>::quiet_NaN(), {style, 3}), "nan");
  }
}

TEST(ValueText, TheLongestFloatHasRoom) {
  using orvlib::FloatForm;
  const float least = std::numeric_limits<float>::lowest();
  EXPECT_THAT(printValue(orvlib::Floats{least}, {FloatForm::Style::Fixed, FloatForm::kMostDigits}),
              ElementsAre("-340282346638528859811704183484516925440.00000000000000000000"));
}

TEST(ValueText, AFormIsForFloatsAlone) {
  const orvlib::FloatForm form{orvlib::FloatForm::Style::Fixed, 3};
  EXPECT_THAT(printValue(orvlib::Integers{1, -2}, form), ElementsAre("1", "-2"));
  EXPECT_THAT(printValue(orvlib::Booleans{true}, form), ElementsAre("true"));
  EXPECT_THAT(printValue(orvlib::Texts{"0.5"}, form), ElementsAre("0.5"));
}

TEST(ValueText, AValueHasTheScalarKindOfItsType) {
  for (auto kind :
       {ScalarKind::Boolean, ScalarKind::Integer, ScalarKind::Float, ScalarKind::String}) {
    EXPECT_EQ(orvlib::scalarKindOf(zeroValue(scalarType(kind))), kind);
    EXPECT_EQ(orvlib::scalarKindFromText(orvlib::toText(kind)), kind);
  }
}

}  // namespace
