#include "standalone/graph/types/Conversion.h"

#include <gtest/gtest.h>

#include <set>

#include "standalone/graph/library/RuntimeDescription.h"
#include "standalone/graph/types/ValueText.h"
#include "tests/standalone/graph/evaluation/KernelRun.h"

namespace {

using orvlib::canConvert;
using orvlib::convert;
using orvlib::Value;
using orvlib::ValueType;

const orvlib::TypeTable& types() { return standardRuntime().description().types; }
const ValueType& type(std::string_view name) { return *types().find(name); }

std::string joined(const std::vector<std::string>& texts) {
  std::string text;
  for (const std::string& part : texts) text += (text.empty() ? "" : ",") + part;
  return text;
}

/// Runs a conversion in the form of its texts.
std::string converted(const char* from, const std::vector<std::string>& texts, const char* to) {
  const auto parsed = orvlib::parseValue(type(from), texts);
  EXPECT_TRUE(parsed.value) << parsed.reason;
  EXPECT_TRUE(canConvert(type(from), type(to))) << from << " to " << to;
  return joined(orvlib::printValue(convert(*parsed.value, type(from), type(to))));
}

/// The types that are no arrays and that each of them converts to, beside itself.
const std::map<std::string, std::set<std::string>> kTargets{
    {"bool", {"int", "float", "vector2", "vector3", "vector4", "color3", "color4"}},
    {"int", {"bool", "float", "vector2", "vector3", "vector4", "color3", "color4"}},
    {"float", {"bool", "int", "vector2", "vector3", "vector4", "color3", "color4"}},
    {"string", {}},
    {"vector2", {}},
    {"vector3", {"color3"}},
    {"vector4", {"color4"}},
    {"color3", {"vector3", "color4"}},
    {"color4", {"vector4", "color3"}},
    {"matrix3", {}},
    {"matrix4", {}},
};

bool isStated(const ValueType& from, const ValueType& to) {
  if (from.isArray() && !to.isArray()) return false;
  const std::string& a = from.element ? from.element->name : from.name;
  const std::string& b = to.element ? to.element->name : to.name;
  return a == b || kTargets.at(a).contains(b);
}

template <class Function>
void forEachPair(Function function) {
  for (const auto& from : types().all()) {
    for (const auto& to : types().all()) function(*from, *to);
  }
}

TEST(Conversion, LeadsWhereTheRulesSayAndNowhereElse) {
  forEachPair([](const ValueType& from, const ValueType& to) {
    EXPECT_EQ(canConvert(from, to), isStated(from, to)) << from.name << " to " << to.name;
  });
}

/// A value of the type that is neither zero nor default.
Value sample(const ValueType& type) {
  const std::size_t count = type.componentCount() * (type.isArray() ? 3 : 1);
  std::vector<std::string> texts;
  for (std::size_t i = 0; i < count; ++i) {
    const bool isBoolean = type.scalar == orvlib::ScalarKind::Boolean;
    texts.push_back(isBoolean ? (i % 2 == 0 ? "true" : "false") : std::to_string(i % 2));
  }
  return *orvlib::parseValue(type, texts).value;
}

std::size_t sizeOf(const Value& value) {
  return std::visit([](const auto& all) { return all.size(); }, value);
}

TEST(Conversion, GivesTheKindAndTheCountOfItsTarget) {
  forEachPair([](const ValueType& from, const ValueType& to) {
    const Value value = convert(sample(from), from, to);
    EXPECT_EQ(orvlib::scalarKindOf(value), to.scalar) << from.name << " to " << to.name;
    std::size_t elements = to.isArray() && from.isArray() ? 3 : 1;
    if (to.isArray() && !canConvert(from, to)) elements = 0;
    EXPECT_EQ(sizeOf(value), elements * to.componentCount()) << from.name << " to " << to.name;
  });
}

TEST(Conversion, ThereAndBackGivesTheSameValueWhenNothingIsLost) {
  forEachPair([](const ValueType& from, const ValueType& to) {
    if (!canConvert(from, to) || !canConvert(to, from)) return;
    if (to.componentCount() < from.componentCount()) return;
    const Value value = sample(from);
    const Value back = convert(convert(value, from, to), to, from);
    EXPECT_TRUE(orvlib::sameValue(back, value)) << from.name << " to " << to.name;
  });
}

TEST(Conversion, OfATypeToItselfChangesNothing) {
  for (const auto& each : types().all()) {
    EXPECT_TRUE(orvlib::sameValue(convert(sample(*each), *each, *each), sample(*each)));
  }
}

TEST(Conversion, ThatIsRefusedGivesTheDefaultOfTheTarget) {
  const Value value = convert(sample(type("string")), type("string"), type("color4"));
  EXPECT_EQ(joined(orvlib::printValue(value)), "0,0,0,1");
}

TEST(Conversion, CutsAFloatOffTowardsZeroWithinTheRangeOfIntegers) {
  EXPECT_EQ(converted("array<float>", {"1.9", "-1.9", "0.5"}, "array<int>"), "1,-1,0");
  EXPECT_EQ(converted("array<float>", {"3e9", "-3e9", "inf", "-inf", "nan"}, "array<int>"),
            "2147483647,-2147483648,2147483647,-2147483648,0");
  EXPECT_EQ(converted("array<float>", {"2147483648", "2147483520", "-2147483648"}, "array<int>"),
            "2147483647,2147483520,-2147483648");
}

TEST(Conversion, TakesEveryNumberButZeroForTrue) {
  EXPECT_EQ(converted("array<float>", {"0", "-0", "0.1", "nan"}, "array<bool>"),
            "false,false,true,true");
  EXPECT_EQ(converted("array<int>", {"0", "-1"}, "array<bool>"), "false,true");
}

TEST(Conversion, OfABooleanGivesZeroOrOne) {
  EXPECT_EQ(converted("array<bool>", {"true", "false"}, "array<float>"), "1,0");
  EXPECT_EQ(converted("array<bool>", {"true", "false"}, "array<int>"), "1,0");
}

TEST(Conversion, OfALargeIntegerGivesTheNearestFloat) {
  EXPECT_EQ(converted("int", {"16777217"}, "float"), "16777216");
}

TEST(Conversion, OfANumberFillsEveryComponentButTheAlpha) {
  EXPECT_EQ(converted("float", {"0.5"}, "vector2"), "0.5,0.5");
  EXPECT_EQ(converted("int", {"2"}, "vector3"), "2,2,2");
  EXPECT_EQ(converted("float", {"0.5"}, "vector4"), "0.5,0.5,0.5,0.5");
  EXPECT_EQ(converted("float", {"0.5"}, "color3"), "0.5,0.5,0.5");
  EXPECT_EQ(converted("float", {"0.5"}, "color4"), "0.5,0.5,0.5,1");
  EXPECT_EQ(converted("bool", {"false"}, "color4"), "0,0,0,1");
}

TEST(Conversion, OfColorsAddsOrDropsTheAlpha) {
  EXPECT_EQ(converted("color3", {"2", "3", "4"}, "color4"), "2,3,4,1");
  EXPECT_EQ(converted("color4", {"2", "3", "4", "0.5"}, "color3"), "2,3,4");
}

TEST(Conversion, OfVectorsAndColorsOfOneSizeKeepsTheComponents) {
  EXPECT_EQ(converted("vector3", {"1", "nan", "3"}, "color3"), "1,nan,3");
  EXPECT_EQ(converted("color4", {"1", "2", "3", "4"}, "vector4"), "1,2,3,4");
}

TEST(Conversion, OfASingleValueToAnArrayGivesOneElement) {
  EXPECT_EQ(converted("string", {"a"}, "array<string>"), "a");
  EXPECT_EQ(converted("vector3", {"1", "2", "3"}, "array<vector3>"), "1,2,3");
  EXPECT_EQ(converted("int", {"2"}, "array<color4>"), "2,2,2,1");
}

TEST(Conversion, OfArraysGoesElementByElement) {
  EXPECT_EQ(converted("array<int>", {"1", "2"}, "array<vector2>"), "1,1,2,2");
  EXPECT_EQ(converted("array<color4>", {"1", "2", "3", "0", "4", "5", "6", "0"}, "array<color3>"),
            "1,2,3,4,5,6");
  EXPECT_EQ(converted("array<int>", {}, "array<color4>"), "");
}

TEST(Conversion, TellsWhichTypesShareTheirLayout) {
  EXPECT_TRUE(orvlib::hasSameLayout(type("vector3"), type("color3")));
  EXPECT_FALSE(orvlib::hasSameLayout(type("color3"), type("color4")));
  EXPECT_FALSE(orvlib::hasSameLayout(type("int"), type("float")));
  EXPECT_FALSE(orvlib::hasSameLayout(type("float"), type("array<float>")));
}

}  // namespace
