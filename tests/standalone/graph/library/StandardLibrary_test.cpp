#include <gtest/gtest.h>

#include <set>

#include "standalone/graph/api/GraphAccess.h"
#include "standalone/graph/library/LoadedRuntime.h"
#include "standalone/graph/types/ValueText.h"
#include "testPaths.h"

namespace {

using ORV_v1::GraphAccess;

class StandardLibrary : public testing::Test {
 protected:
  void SetUp() override {
    runtime_ = orvlib::LoadedRuntime::load(VESK_SOURCE_DIR "/library/standard", diagnostics_);
    ASSERT_TRUE(runtime_);
  }

  template <class Function>
  void forEachPort(Function function) const {
    for (const auto& [name, node] : runtime_->content().nodesByName) {
      for (const auto& port : GraphAccess::describe(*node).ports) function(name, port);
    }
  }

  orvlib::Diagnostics diagnostics_;
  std::unique_ptr<orvlib::LoadedRuntime> runtime_;
};

TEST_F(StandardLibrary, LoadsWithoutADiagnostic) {
  for (const auto& diagnostic : diagnostics_) ADD_FAILURE() << diagnostic.toText();
}

TEST_F(StandardLibrary, HasAtLeastAHundredNodes) {
  EXPECT_GE(runtime_->content().nodesByName.size(), 100u);
}

TEST_F(StandardLibrary, HasATypeForEveryUsualKindOfValue) {
  for (const char* name : {"bool", "int", "float", "string", "vector3", "matrix4", "color4",
                           "array<float>", "array<vector3>"}) {
    EXPECT_TRUE(runtime_->findPortType(name) != nullptr) << name;
  }
}

TEST_F(StandardLibrary, EveryDefaultRoundTripsThroughItsTexts) {
  forEachPort([](const std::string& node, const orvlib::PortDescription& port) {
    const auto parsed = orvlib::parseValue(*port.type, orvlib::printValue(port.defaultValue));
    ASSERT_TRUE(parsed.value) << node << "." << port.name << ": " << parsed.reason;
    EXPECT_EQ(*parsed.value, port.defaultValue) << node << "." << port.name;
  });
}

TEST_F(StandardLibrary, EveryNodeHasAnOutput) {
  for (const auto& [name, node] : runtime_->content().nodesByName) {
    const auto& ports = GraphAccess::describe(*node).ports;
    EXPECT_TRUE(!ports.empty() && ports.back().direction == orvlib::PortDirection::Output) << name;
  }
}

TEST_F(StandardLibrary, EveryDescriptionIsASentence) {
  for (const auto& [name, node] : runtime_->content().nodesByName) {
    EXPECT_EQ(GraphAccess::describe(*node).description.back(), '.') << name;
  }
  forEachPort([](const std::string& node, const orvlib::PortDescription& port) {
    EXPECT_EQ(port.description.back(), '.') << node << "." << port.name;
  });
}

TEST_F(StandardLibrary, NiceNamesAreUniqueInTheirLibrary) {
  for (const auto& [name, library] : runtime_->content().librariesByName) {
    std::set<std::string> niceNames;
    for (const auto& node : GraphAccess::describe(*library).nodes) {
      EXPECT_TRUE(niceNames.insert(node->niceName).second) << name << ": " << node->niceName;
    }
  }
}

TEST_F(StandardLibrary, TakesManyConnectionsWhereValuesAreGathered) {
  std::set<std::string> gathering;
  forEachPort([&](const std::string& node, const orvlib::PortDescription& port) {
    if (port.fanIn) gathering.insert(node + "." + port.name);
  });
  const std::set<std::string> expected{"core::array::build.elements",
                                       "core::array::build_int.elements",
                                       "core::array::build_string.elements",
                                       "core::array::build_vector3.elements",
                                       "core::array::sum.array",
                                       "core::array::average.array",
                                       "core::array::minimum.array",
                                       "core::array::maximum.array",
                                       "core::logic::all.values",
                                       "core::logic::any.values",
                                       "core::logic::count_true.values",
                                       "core::string::join.parts"};
  EXPECT_EQ(gathering, expected);
}

TEST_F(StandardLibrary, AMatrixIsTheIdentityByDefault) {
  const auto type = GraphAccess::typeOf(*runtime_->findPortType("matrix3"));
  EXPECT_EQ(type->defaultValue, orvlib::Value(orvlib::Floats{1, 0, 0, 0, 1, 0, 0, 0, 1}));
}

}  // namespace
