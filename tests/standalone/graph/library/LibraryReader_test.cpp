#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "standalone/graph/api/GraphAccess.h"
#include "standalone/graph/types/ValueText.h"
#include "tests/standalone/graph/RuntimeFolder.h"

namespace {

using ORV_v1::GraphAccess;
using testing::ElementsAre;

constexpr const char* kLibrary =
    "library: core\n"
    "niceName: Core\n"
    "description: The root.\n"
    "nodes:\n"
    "  - name: mix\n"
    "    niceName: Mix Two\n"
    "    description: Mixes.\n"
    "    inputs:\n"
    "      - {name: a, type: pair, default: [1, 2.50], description: First.}\n"
    "      - {name: weight, type: float, description: Share.}\n"
    "      - {name: rest, type: array<pair>, default: [1, 2, 3, 4], fanIn: true, "
    "description: Others.}\n"
    "    outputs:\n"
    "      - {name: result, type: pair, description: Mixed.}\n";

class LibraryReader : public testing::Test {
 protected:
  void SetUp() override {
    folder_.write("core.yaml", kLibrary);
    runtime_ = folder_.load();
    ASSERT_TRUE(folder_.diagnostics.empty()) << folder_.diagnostics[0].toText();
  }

  const orvlib::NodeDescription& node() const {
    return GraphAccess::describe(*runtime_->findNode("core::mix"));
  }

  RuntimeFolder folder_;
  std::unique_ptr<orvlib::LoadedRuntime> runtime_;
};

TEST_F(LibraryReader, QualifiesTheNodeByItsLibrary) { EXPECT_EQ(node().name, "core::mix"); }

TEST_F(LibraryReader, KeepsNiceNameAndDescription) {
  EXPECT_EQ(node().niceName, "Mix Two");
  EXPECT_EQ(node().description, "Mixes.");
}

TEST_F(LibraryReader, KeepsThePortsInOrderInputsFirst) {
  std::vector<std::string> names;
  for (const auto& port : node().ports) names.push_back(port.name);
  EXPECT_THAT(names, ElementsAre("a", "weight", "rest", "result"));
  EXPECT_EQ(node().ports[2].direction, orvlib::PortDirection::Input);
  EXPECT_EQ(node().ports[3].direction, orvlib::PortDirection::Output);
}

TEST_F(LibraryReader, KeepsEachPortsTypeAndDescription) {
  EXPECT_EQ(node().ports[0].type->name, "pair");
  EXPECT_EQ(node().ports[1].description, "Share.");
}

TEST_F(LibraryReader, ReadsDefaultsByTheirType) {
  EXPECT_THAT(orvlib::printValue(node().ports[0].defaultValue), ElementsAre("1", "2.5"));
  EXPECT_THAT(orvlib::printValue(node().ports[2].defaultValue), ElementsAre("1", "2", "3", "4"));
}

TEST_F(LibraryReader, AnInputTakesManyConnectionsWhenItSaysSo) {
  EXPECT_FALSE(node().ports[0].fanIn);
  EXPECT_TRUE(node().ports[2].fanIn);
}

TEST_F(LibraryReader, APortWithoutADefaultTakesThatOfItsType) {
  EXPECT_THAT(orvlib::printValue(node().ports[1].defaultValue), ElementsAre("0.25"));
}

/// One way to write a library wrongly: the text that replaces a part of the good file.
struct Mistake {
  const char* behaviour;
  std::string part;
  std::string replacement;
  int line;
  int column;
  std::string reason;
};

class LibraryMistake : public testing::TestWithParam<Mistake> {};

TEST_P(LibraryMistake, IsToldWithItsPlaceAndLeavesTheFileOut) {
  std::string text = kLibrary;
  const auto at = text.find(GetParam().part);
  ASSERT_NE(at, text.npos);
  text.replace(at, GetParam().part.size(), GetParam().replacement);
  RuntimeFolder folder;
  const std::string file = folder.write("core.yaml", text);
  const auto runtime = folder.load();
  ASSERT_FALSE(folder.diagnostics.empty());
  const orvlib::Diagnostic& told = folder.diagnostics[0];
  EXPECT_EQ(told.reason, GetParam().reason);
  EXPECT_EQ(told.file, file);
  EXPECT_EQ(told.line, GetParam().line);
  EXPECT_EQ(told.column, GetParam().column);
  EXPECT_TRUE(runtime->findLibrary("core") == nullptr);
}

const Mistake kMistakes[] = {
    {"UnknownLibraryKey", "niceName: Core", "nicename: Core", 2, 1,
     "a library has no key 'nicename'; its keys are library, niceName, description, nodes"},
    {"UnknownNodeKey", "    outputs:", "    output:", 12, 5,
     "a node has no key 'output'; its keys are name, niceName, description, inputs, outputs"},
    {"UnknownInputKey", "default: [1, 2.50]", "value: [1, 2.50]", 9, 31,
     "an input has no key 'value'; its keys are name, type, default, fanIn, description"},
    {"DefaultOfAnOutput", "type: pair, description: Mixed.",
     "type: pair, default: [0, 0], description: Mixed.", 13, 36,
     "an output has no key 'default'; its keys are name, type, description"},
    {"MissingLibraryName", "library: core\n", "", 1, 1, "a library lacks the key 'library'"},
    {"MissingDescriptionOfTheLibrary", "description: The root.\n", "", 1, 1,
     "a library lacks the key 'description'"},
    {"MissingDescriptionOfANode", "    description: Mixes.\n", "", 5, 5,
     "a node lacks the key 'description'"},
    {"MissingDescriptionOfAPort", ", description: Share.", "", 10, 9,
     "an input lacks the key 'description'"},
    {"MissingNiceName", "    niceName: Mix Two\n", "", 5, 5, "a node lacks the key 'niceName'"},
    {"MissingType", "type: float, ", "", 10, 9, "an input lacks the key 'type'"},
    {"BlankDescription", "Mixes.", "'  '", 7, 18, "a node: 'description' is empty"},
    {"NullDescription", "description: Mixes.", "description:", 7, 5,
     "a node: 'description' must be a text"},
    {"NiceNameOfTwoLines", "Mix Two", "\"a\\nb\"", 6, 15,
     "a node: 'niceName' must be a single line"},
    {"BadLibraryName", "library: core", "library: core:math", 1, 10,
     "a library: 'core:math' is no library name: use names with '::' between them"},
    {"BadNodeName", "name: mix", "name: 2mix", 5, 11,
     "a node: '2mix' is no name: use letters, digits and '_', not a digit first"},
    {"BadPortName", "name: weight", "name: my weight", 10, 16,
     "an input: 'my weight' is no name: use letters, digits and '_', not a digit first"},
    {"UnknownType", "type: float", "type: double", 10, 30,
     "an input: the runtime has no port type 'double'"},
    {"FanInOfASingleValue", "type: float, ", "type: float, fanIn: true, ", 10, 44,
     "an input: 'fanIn' needs an array type, which 'float' is not"},
    {"FanInThatIsNeitherTrueNorFalse", "fanIn: true", "fanIn: yes", 11, 71,
     "an input: 'fanIn' must be true or false"},
    {"FanInOfAnOutput", "description: Mixed.", "fanIn: false, description: Mixed.", 13, 36,
     "an output has no key 'fanIn'; its keys are name, type, description"},
    {"DoubledPortName", "name: rest", "name: a", 11, 9,
     "node 'core::mix' has more than one port named 'a'"},
    {"OutputNamedLikeAnInput", "name: result", "name: a", 13, 9,
     "node 'core::mix' has more than one port named 'a'"},
    {"DefaultWithTooFewValues", "[1, 2.50]", "[1]", 9, 40,
     "an input: the default does not fit: type 'pair' takes 2 values, not 1"},
    {"DefaultThatIsNoNumber", "[1, 2.50]", "[1, two]", 9, 40,
     "an input: the default does not fit: 'two' is not a number (type 'pair')"},
    {"DefaultWithListsInside", "[1, 2.50]", "[1, [2]]", 9, 44,
     "a list of values must hold single texts alone"},
    {"DefaultThatIsAMapping", "[1, 2.50]", "{x: 1}", 9, 40,
     "a value must be a single text or a list of texts"},
    {"DoubledKey", "niceName: Core\n", "niceName: Core\nniceName: Core\n", 3, 1,
     "the key 'niceName' appears twice"},
};

INSTANTIATE_TEST_SUITE_P(Each, LibraryMistake, testing::ValuesIn(kMistakes),
                         [](const auto& param) { return std::string(param.param.behaviour); });

orvlib::Diagnostic diagnosticOf(const std::string& text) {
  RuntimeFolder folder;
  folder.write("core.yaml", text);
  folder.load();
  return folder.diagnostics.empty() ? orvlib::Diagnostic{} : folder.diagnostics[0];
}

constexpr const char* kHead = "library: core\nniceName: Core\ndescription: Text.\n";

TEST(LibraryShape, NodesMustBeAList) {
  const auto told = diagnosticOf(std::string(kHead) + "nodes: some\n");
  EXPECT_EQ(told.reason, "a library: 'nodes' must be a list");
  EXPECT_EQ(told.line, 4);
}

TEST(LibraryShape, ANodeMustBeAMapping) {
  const auto told = diagnosticOf(std::string(kHead) + "nodes:\n  - mix\n");
  EXPECT_EQ(told.reason, "a node must be a mapping of keys to values");
  EXPECT_EQ(told.line, 5);
}

TEST(LibraryShape, TheDocumentMustBeAMapping) {
  EXPECT_EQ(diagnosticOf("- a\n- b\n").reason, "a library must be a mapping of keys to values");
}

TEST(LibraryShape, NoTwoNodesHaveOneName) {
  const std::string node = "  - {name: mix, niceName: Mix, description: Text.}\n";
  const auto told = diagnosticOf(std::string(kHead) + "nodes:\n" + node + node);
  EXPECT_EQ(told.reason, "the library has more than one node named 'core::mix'");
  EXPECT_EQ(told.line, 6);
}

TEST(LibraryShape, ALibraryMayHaveNoNodes) {
  RuntimeFolder folder;
  folder.write("core.yaml", kHead);
  const auto runtime = folder.load();
  EXPECT_TRUE(folder.diagnostics.empty());
  EXPECT_EQ(runtime->findLibrary("core")->getNumberOfNodes(), 0u);
}

}  // namespace
