#include <gtest/gtest.h>

#include <cmath>
#include <map>

#include "standalone/graph/types/ValueText.h"
#include "tests/standalone/graph/evaluation/KernelRun.h"
#include "tests/standalone/graph/evaluation/cases/ArrayCases.h"
#include "tests/standalone/graph/evaluation/cases/ColorCases.h"
#include "tests/standalone/graph/evaluation/cases/LogicCases.h"
#include "tests/standalone/graph/evaluation/cases/MathCases.h"
#include "tests/standalone/graph/evaluation/cases/MatrixCases.h"
#include "tests/standalone/graph/evaluation/cases/SelectCases.h"
#include "tests/standalone/graph/evaluation/cases/StringCases.h"
#include "tests/standalone/graph/evaluation/cases/VectorCases.h"

namespace {

using ORV_v1::GraphAccess;
using orvlib::Floats;
using orvlib::ScalarKind;
using orvlib::Value;
using orvlib::ValueType;

const LibraryCases kLibraries[] = {
    {"core::array", kArrayCases},
    {"core::color", kColorCases},
    {"core::compare", kCompareCases},
    {"core::constant", kConstantCases},
    {"core::convert", kConvertCases},
    {"core::logic", kLogicCases},
    {"core::math", kMathCases},
    {"core::math::integer", kIntegerCases},
    {"core::math::trigonometry", kTrigonometryCases},
    {"core::matrix::matrix3", kMatrix3Cases},
    {"core::matrix::matrix4", kMatrix4Cases},
    {"core::random", kRandomCases},
    {"core::select", kSelectCases},
    {"core::string", kStringCases},
    {"core::vector::vector2", kVector2Cases},
    {"core::vector::vector3", kVector3Cases},
    {"core::vector::vector4", kVector4Cases},
};

std::vector<std::string> split(const std::string& text, char separator) {
  std::vector<std::string> parts(1);
  for (const char character : text) {
    character == separator ? static_cast<void>(parts.emplace_back())
                           : static_cast<void>(parts.back() += character);
  }
  return parts;
}

std::vector<std::string> toTexts(const ValueType& type, const std::string& text) {
  if (type.isArray() && text.empty()) return {};
  if (!type.isArray() && type.scalar == ScalarKind::String) return {text};
  std::vector<std::string> texts = split(text, ',');
  for (std::string& part : texts) {
    if (part == "''") part.clear();
  }
  return texts;
}

Value parse(const ValueType& type, const std::string& text) {
  const auto parsed = orvlib::parseValue(type, toTexts(type, text));
  EXPECT_TRUE(parsed.value) << parsed.reason;
  return parsed.value.value_or(Value());
}

bool isNear(const Value& a, const Value& b) {
  const auto& x = std::get<Floats>(a);
  const auto& y = std::get<Floats>(b);
  const auto near = [](float p, float q) {
    return std::fabs(p - q) <= 1e-6F * std::max(1.0F, std::fabs(q));
  };
  return std::equal(x.begin(), x.end(), y.begin(), y.end(), near);
}

std::string toText(const Value& value) {
  std::string text;
  for (const std::string& part : orvlib::printValue(value)) text += "'" + part + "' ";
  return text;
}

void expectOutput(const orvlib::PortDescription& port, const Value& output, std::string stated) {
  const bool isApproximate = stated.starts_with("~");
  const Value expected = parse(*port.type, isApproximate ? stated.substr(1) : stated);
  const bool fits = isApproximate ? isNear(output, expected) : orvlib::sameValue(output, expected);
  EXPECT_TRUE(fits) << port.name << " is " << toText(output) << "instead of " << toText(expected);
}

void expectCase(const std::string& library, const KernelCase& stated) {
  SCOPED_TRACE(library + "::" + stated.definition + " of " + stated.inputs);
  const auto definition = standardRuntime().findNode(library + "::" + stated.definition);
  ASSERT_TRUE(definition != nullptr);
  const auto& ports = GraphAccess::describe(*definition).ports;
  std::vector<std::string> texts = split(stated.inputs, '|');
  if (ports[0].direction == orvlib::PortDirection::Output) texts.clear();
  Values inputs;
  for (std::size_t i = 0; i < texts.size(); ++i) {
    ASSERT_LT(i, ports.size());
    inputs.push_back(parse(*ports[i].type, texts[i]));
  }
  const auto outputs = split(stated.outputs, '|');
  ASSERT_EQ(inputs.size() + outputs.size(), ports.size());
  const Values given = runKernel(GraphAccess::describe(*definition), inputs);
  ASSERT_EQ(given.size(), outputs.size()) << "no kernel";
  for (std::size_t i = 0; i < given.size(); ++i) {
    expectOutput(ports[inputs.size() + i], given[i], outputs[i]);
  }
}

class KernelCases : public testing::TestWithParam<LibraryCases> {};

TEST_P(KernelCases, GiveWhatTheDescriptionsSay) {
  for (const KernelCase& stated : GetParam().cases) expectCase(GetParam().library, stated);
}

INSTANTIATE_TEST_SUITE_P(Each, KernelCases, testing::ValuesIn(kLibraries), [](const auto& param) {
  std::string name = param.param.library;
  std::erase(name, ':');
  return name;
});

TEST(KernelCasesTogether, TryEveryDefinitionTwice) {
  std::map<std::string, int> tries;
  for (const LibraryCases& library : kLibraries) {
    for (const KernelCase& stated : library.cases) {
      ++tries[std::string(library.library) + "::" + stated.definition];
    }
  }
  for (const auto& [name, node] : standardRuntime().content().nodesByName) {
    const bool hasInputs =
        GraphAccess::describe(*node).ports[0].direction == orvlib::PortDirection::Input;
    EXPECT_GE(tries[name], hasInputs ? 2 : 1) << name;
  }
}

}  // namespace
