#include "standalone/graph/evaluation/Kernel.h"

#include <gmock/gmock.h>

#include <cmath>
#include <limits>
#include <random>
#include <set>

#include "tests/standalone/graph/evaluation/KernelRun.h"

namespace {

using ORV_v1::GraphAccess;
using orvlib::Floats;
using orvlib::NodeDescription;
using orvlib::ScalarKind;
using orvlib::Texts;
using orvlib::Value;

const NodeDescription& standardNode(const char* name) {
  return GraphAccess::describe(*standardRuntime().findNode(name));
}

template <class Function>
void forEachNode(Function function) {
  for (const auto& [name, node] : standardRuntime().content().nodesByName) {
    function(GraphAccess::describe(*node));
  }
}

TEST(Kernel, EveryDefinitionHasOneThatFitsItsPorts) {
  forEachNode([](const NodeDescription& node) {
    EXPECT_TRUE(orvlib::findKernel(node)) << node.name;
    EXPECT_EQ(orvlib::findKernel(node), orvlib::findKernel(node.name)) << node.name;
  });
}

TEST(Kernel, NoneLacksItsDefinition) {
  const auto& nodes = standardRuntime().content().nodesByName;
  const auto names = orvlib::kernelNames();
  for (const std::string_view name : names) {
    EXPECT_NE(nodes.find(name), nodes.end()) << name;
  }
  EXPECT_EQ(std::set(names.begin(), names.end()).size(), nodes.size());
}

TEST(Kernel, IsNullForAnUnknownName) {
  EXPECT_FALSE(orvlib::findKernel("core::math::"));
  EXPECT_FALSE(orvlib::findKernel(""));
}

TEST(Kernel, IsNullForADefinitionWithOtherPortTypes) {
  NodeDescription node = standardNode("core::math::add");
  node.ports[1].type = standardNode("core::vector::vector2::add").ports[1].type;
  EXPECT_FALSE(orvlib::findKernel(node));
}

TEST(Kernel, IsNullForADefinitionWithAnArrayInPlaceOfAScalar) {
  NodeDescription node = standardNode("core::math::negate");
  node.ports[0].type = standardNode("core::array::sum").ports[0].type;
  EXPECT_FALSE(orvlib::findKernel(node));
}

TEST(Kernel, IsNullForADefinitionWithFewerPorts) {
  NodeDescription node = standardNode("core::math::add");
  node.ports.erase(node.ports.begin());
  EXPECT_FALSE(orvlib::findKernel(node));
}

TEST(Kernel, IsNullForADefinitionWhoseInputBecameAnOutput) {
  NodeDescription node = standardNode("core::math::add");
  node.ports[1].direction = orvlib::PortDirection::Output;
  EXPECT_FALSE(orvlib::findKernel(node));
}

TEST(Kernel, GivesOutputsOfTheirTypesForTheDefaultInputs) {
  forEachNode([](const NodeDescription& node) {
    const Values inputs = defaultInputs(node);
    const Values outputs = runKernel(node, inputs);
    ASSERT_EQ(inputs.size() + outputs.size(), node.ports.size()) << node.name;
    expectLayouts(node, outputs);
  });
}

TEST(Kernel, OverwritesWhateverItsOutputsHeld) {
  const Value leftovers[] = {Texts{"a", "b"}, Floats(100, 7.0F), orvlib::Booleans(3, true),
                             orvlib::Integers(20, 5)};
  forEachNode([&](const NodeDescription& node) {
    const Values inputs = defaultInputs(node);
    const Values fresh = runKernel(node, inputs);
    for (const Value& leftover : leftovers) {
      const Values again = runKernel(node, inputs, leftover);
      for (std::size_t i = 0; i < fresh.size(); ++i) {
        EXPECT_TRUE(orvlib::sameValue(fresh[i], again[i])) << node.name;
      }
    }
  });
}

/// Values that computing with is likely to go wrong, out of a generator with a fixed seed.
class ExtremeValues {
 public:
  Value next(const orvlib::ValueType& type) {
    const std::size_t elements = type.isArray() ? pick({0, 1, 2, 3, 17}) : 1;
    const std::size_t count = elements * type.componentCount();
    switch (type.scalar) {
      case ScalarKind::Boolean:
        return fill<orvlib::Booleans>(count, {false, true});
      case ScalarKind::Integer:
        return fill<orvlib::Integers>(
            count, {0, 1, -1, 2, 3, 100, -100, kSmallest, kSmallest + 1, kLargest, 16777216});
      case ScalarKind::Float:
        return fill<Floats>(count, {0.0F, -0.0F, 1.0F, -1.0F, 0.5F, 1e-45F, -1e-45F, 3e38F, -3e38F,
                                    2147483648.0F, 1e9F, kInfinity, -kInfinity, kNan});
      case ScalarKind::String:
        break;
    }
    return fill<Texts>(count, {"", "a", ",", "nan", "-1e99", "2147483648", "\x80\xbf", "a\xff\xc3",
                               std::string("\0b", 2), "\xf0\x9f\x98\x80 \t", std::string(99, 'a')});
  }

 private:
  static constexpr float kInfinity = std::numeric_limits<float>::infinity();
  static constexpr float kNan = std::numeric_limits<float>::quiet_NaN();
  static constexpr std::int32_t kSmallest = std::numeric_limits<std::int32_t>::min();
  static constexpr std::int32_t kLargest = std::numeric_limits<std::int32_t>::max();

  std::size_t pick(const std::vector<std::size_t>& choices) {
    return choices[generator_() % choices.size()];
  }

  template <class Scalars>
  Scalars fill(std::size_t count, const std::vector<typename Scalars::value_type>& choices) {
    Scalars scalars;
    for (std::size_t i = 0; i < count; ++i) {
      scalars.push_back(choices[generator_() % choices.size()]);
    }
    return scalars;
  }

  std::mt19937 generator_{20261121};
};

std::size_t sizeOf(const Value& value) {
  if (const auto* texts = std::get_if<Texts>(&value); texts && texts->size() == 1) {
    return texts->front().size();
  }
  return std::visit([](const auto& all) { return all.size(); }, value);
}

/// A result that the limit just allows takes a while, so that few of them must do.
bool makesMany(const NodeDescription& node, const Values& inputs) {
  static const std::set<std::string> kBySize{"core::array::range", "core::array::fill",
                                             "core::random::random_array", "core::string::repeat"};
  if (!kBySize.contains(node.name)) return false;
  for (const Value& input : inputs) {
    const auto* count = std::get_if<orvlib::Integers>(&input);
    if (count && (*count)[0] == 16777216) return true;
  }
  return false;
}

TEST(Kernel, FillsItsOutputsWhateverTheValues) {
  ExtremeValues values;
  forEachNode([&](const NodeDescription& node) {
    for (int round = 0; round < 200; ++round) {
      Values inputs = defaultInputs(node);
      for (std::size_t i = 0; i < inputs.size(); ++i) inputs[i] = values.next(*node.ports[i].type);
      if (round > 20 && makesMany(node, inputs)) continue;
      const Values outputs = runKernel(node, inputs);
      expectLayouts(node, outputs);
      for (const Value& output : outputs) {
        EXPECT_LE(sizeOf(output), orvlib::kMaxResultSize) << node.name;
      }
    }
  });
}

Value run(const char* name, const Values& inputs) {
  return runKernel(standardNode(name), inputs)[0];
}

constexpr auto kLimit = orvlib::kMaxResultSize;

Value text(std::string text) { return Texts{std::move(text)}; }
Value number(std::int32_t number) { return orvlib::Integers{number}; }

TEST(KernelLimit, IsReachedByAnArrayButNotPassed) {
  const Value full = Floats(kLimit);
  EXPECT_EQ(sizeOf(run("core::array::fill", {Floats{1}, number(kLimit)})), kLimit);
  EXPECT_EQ(sizeOf(run("core::array::append", {Floats(kLimit - 1), Floats{1}})), kLimit);
  EXPECT_EQ(sizeOf(run("core::array::append", {full, Floats{1}})), 0u);
  EXPECT_EQ(sizeOf(run("core::array::concatenate", {full, full})), 0u);
}

TEST(KernelLimit, CountsTheComponentsOfVectors) {
  EXPECT_EQ(sizeOf(run("core::array::append_vector3", {Floats(kLimit - 4), Floats{1, 2, 3}})),
            kLimit - 1);
  EXPECT_EQ(sizeOf(run("core::array::append_vector3", {Floats(kLimit - 1), Floats{1, 2, 3}})), 0u);
}

TEST(KernelLimit, IsReachedByATextButNotPassed) {
  const Value half = text(std::string(kLimit / 2, 'a'));
  EXPECT_EQ(sizeOf(run("core::string::repeat", {half, number(2)})), kLimit);
  EXPECT_EQ(sizeOf(run("core::string::repeat", {half, number(3)})), 0u);
  EXPECT_EQ(sizeOf(run("core::string::concatenate", {half, half})), kLimit);
  EXPECT_EQ(sizeOf(run("core::string::replace", {text("bb"), text("b"), half})), kLimit);
  EXPECT_EQ(sizeOf(run("core::string::replace", {text("bab"), text("b"), half})), 0u);
  EXPECT_EQ(sizeOf(run("core::string::join", {Texts(3, std::string(kLimit / 2, 'a')), text("")})),
            0u);
}

TEST(KernelLimit, CountsElementsAndBytesOfTexts) {
  const std::string half(kLimit / 2, 'a');
  const auto count = [](const Value& value) { return std::get<Texts>(value).size(); };
  EXPECT_EQ(count(run("core::array::append_string", {Texts{half}, text(half.substr(2))})), 2u);
  EXPECT_EQ(count(run("core::array::append_string", {Texts{half}, text(half.substr(1))})), 0u);
  EXPECT_EQ(count(run("core::string::split", {text(half + half), text("b")})), 0u);
  EXPECT_EQ(count(run("core::string::split", {text(half), text("")})), kLimit / 2);
  EXPECT_EQ(count(run("core::string::split", {text(half + "a"), text("")})), 0u);
}

}  // namespace
