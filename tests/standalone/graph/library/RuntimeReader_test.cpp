#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "standalone/graph/api/GraphAccess.h"
#include "standalone/graph/types/ValueText.h"
#include "tests/standalone/graph/RuntimeFolder.h"

namespace {

using ORV_v1::GraphAccess;
using testing::ElementsAre;

class RuntimeReader : public testing::Test {
 protected:
  void SetUp() override {
    folder_.writeLibrary("core.yaml", "core");
    runtime_ = folder_.load();
    ASSERT_TRUE(folder_.diagnostics.empty()) << folder_.diagnostics[0].toText();
  }

  const orvlib::ValueType& type(const char* name) const {
    return *GraphAccess::typeOf(*runtime_->findPortType(name));
  }

  RuntimeFolder folder_;
  std::unique_ptr<orvlib::LoadedRuntime> runtime_;
};

TEST_F(RuntimeReader, KeepsTheTypesInTheirOrder) {
  std::vector<std::string> names;
  for (const auto& portType : runtime_->content().portTypes)
    names.emplace_back(portType->getName());
  EXPECT_THAT(names, ElementsAre("bool", "int", "float", "pair", "array<pair>"));
}

TEST_F(RuntimeReader, ATypeWithComponentsKnowsTheirNames) {
  EXPECT_THAT(type("pair").components, ElementsAre("x", "y"));
  EXPECT_EQ(type("pair").componentCount(), 2u);
}

TEST_F(RuntimeReader, AScalarTypeHasOneComponent) {
  EXPECT_EQ(type("int").componentCount(), 1u);
  EXPECT_EQ(type("int").scalar, orvlib::ScalarKind::Integer);
}

TEST_F(RuntimeReader, AnArrayTypeHasTheScalarOfItsElement) {
  EXPECT_TRUE(type("array<pair>").isArray());
  EXPECT_EQ(type("array<pair>").element->name, "pair");
  EXPECT_EQ(type("array<pair>").scalar, orvlib::ScalarKind::Float);
}

TEST_F(RuntimeReader, ATypeStatesItsDefaultOrIsZero) {
  EXPECT_THAT(orvlib::printValue(type("float").defaultValue), ElementsAre("0.25"));
  EXPECT_THAT(orvlib::printValue(type("pair").defaultValue), ElementsAre("0", "0"));
}

struct Mistake {
  const char* behaviour;
  std::string part;
  std::string replacement;
  int line;
  std::string reason;
};

class RuntimeMistake : public testing::TestWithParam<Mistake> {};

TEST_P(RuntimeMistake, IsToldWithItsPlaceAndLeavesTheRuntimeOut) {
  std::string text = RuntimeFolder::kRuntime;
  const auto at = text.find(GetParam().part);
  ASSERT_NE(at, text.npos);
  text.replace(at, GetParam().part.size(), GetParam().replacement);
  RuntimeFolder folder;
  folder.write("runtime.yaml", text);
  EXPECT_EQ(folder.load(), nullptr);
  ASSERT_EQ(folder.diagnostics.size(), 1u);
  EXPECT_EQ(folder.diagnostics[0].reason, GetParam().reason);
  EXPECT_EQ(folder.diagnostics[0].line, GetParam().line);
}

const Mistake kMistakes[] = {
    {"UnknownKey", "niceName: Trial", "nice: Trial", 2,
     "a runtime has no key 'nice'; its keys are name, niceName, description, rootLibrary, "
     "portTypes"},
    {"MissingName", "name: trial\n", "", 1, "a runtime lacks the key 'name'"},
    {"BadName", "name: trial", "name: a/b", 1,
     "a runtime: 'a/b' is no name: use letters, digits and '_', not a digit first"},
    {"NestedRootLibrary", "rootLibrary: core", "rootLibrary: core::math", 4,
     "a runtime: 'core::math' is no name: use letters, digits and '_', not a digit first"},
    {"UnknownScalar", "scalar: integer", "scalar: number", 7,
     "a port type: 'number' is none of boolean, integer, float and string"},
    {"MissingScalar", ", scalar: integer", "", 7, "a port type lacks the key 'scalar'"},
    {"DoubledType", "name: int", "name: bool", 7, "the port type 'bool' appears twice"},
    {"BadTypeName", "name: int", "name: a b", 7,
     "a port type: 'a b' is no name: use letters, digits and '_', not a digit first"},
    {"DoubledComponent", "[x, y]", "[x, x]", 9, "the component 'x' appears twice"},
    {"BadComponent", "[x, y]", "[x, 2]", 9,
     "the component name '2' is no name: use letters, digits and '_'"},
    {"UnknownElement", "element: pair", "element: trio", 10,
     "a port type: no port type 'trio' stands before it"},
    {"ArrayNamedOtherwise", "name: array<pair>", "name: pairs", 10,
     "a port type: an array of 'pair' must be named 'array<pair>', not 'pairs'"},
    {"ArrayWithAScalar", "element: pair", "element: pair, scalar: float", 10,
     "a port type: an array has the scalar of its element"},
    {"ArrayWithComponents", "element: pair", "element: pair, components: [x]", 10,
     "a port type: an array has no components"},
    {"DefaultThatDoesNotFit", "default: 0.25", "default: much", 8,
     "a port type: the default does not fit: 'much' is not a number (type 'float')"},
};

INSTANTIATE_TEST_SUITE_P(Each, RuntimeMistake, testing::ValuesIn(kMistakes),
                         [](const auto& param) { return std::string(param.param.behaviour); });

TEST(RuntimeShape, AnArrayCannotHoldArrays) {
  RuntimeFolder folder;
  folder.write("runtime.yaml",
               std::string(RuntimeFolder::kRuntime) +
                   "  - {name: array<array<pair>>, niceName: A, description: Text., element: "
                   "array<pair>}\n");
  EXPECT_EQ(folder.load(), nullptr);
  EXPECT_EQ(folder.diagnostics.at(0).reason, "a port type: an array cannot hold arrays");
}

TEST(RuntimeShape, PortTypesMustBeThere) {
  RuntimeFolder folder;
  folder.write("runtime.yaml", "name: trial\nniceName: Trial\ndescription: Text.\n");
  EXPECT_EQ(folder.load(), nullptr);
  EXPECT_EQ(folder.diagnostics.at(0).reason, "a runtime lacks the key 'portTypes'");
}

}  // namespace
