#include "platform/ORV_1_0/NodeLibrary.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

#include "standalone/graph/library/RuntimeRegistry.h"
#include "testPaths.h"

namespace {

using Library = ORV_v1::AddRefWrapper<ORV_v1::NodeLibrary>;
using testing::ElementsAre;

class NodeLibrary : public testing::Test {
 protected:
  void SetUp() override {
    registry_.load(VESK_SOURCE_DIR "/library");
    registry_.load(VESK_SOURCE_DIR "/tests/data/library");
    registry_.makeCurrent();
  }

  orvlib::RuntimeRegistry registry_;
};

void appendSubLibraries(const Library& library, std::vector<std::string>& names) {
  for (unsigned int i = 0; i < library->getNumberOfSubLibraries(); ++i) {
    const Library child = library->getSubLibraryAt(i);
    names.emplace_back(child->getName());
    appendSubLibraries(child, names);
  }
}

TEST(NodeLibraryWithoutARegistry, FindsNothing) {
  EXPECT_TRUE(ORV_v1::NodeLibrary::findLibrary("core") == nullptr);
}

TEST_F(NodeLibrary, IsFoundByItsQualifiedName) {
  const Library library = ORV_v1::NodeLibrary::findLibrary("core::math::trigonometry");
  ASSERT_TRUE(library != nullptr);
  EXPECT_STREQ(library->getName(), "core::math::trigonometry");
  EXPECT_STREQ(library->getNiceName(), "Trigonometry");
}

TEST_F(NodeLibrary, IsFoundInALaterRuntimeToo) {
  const Library library = ORV_v1::NodeLibrary::findLibrary("base");
  ASSERT_TRUE(library != nullptr);
  EXPECT_STREQ(library->getNiceName(), "Base");
}

TEST_F(NodeLibrary, IsNotFoundByAnotherTextThanItsName) {
  EXPECT_TRUE(ORV_v1::NodeLibrary::findLibrary("math") == nullptr);
  EXPECT_TRUE(ORV_v1::NodeLibrary::findLibrary("") == nullptr);
  EXPECT_TRUE(ORV_v1::NodeLibrary::findLibrary(nullptr) == nullptr);
}

TEST_F(NodeLibrary, HasItsSubLibrariesInTheOrderOfTheirFiles) {
  std::vector<std::string> names;
  appendSubLibraries(ORV_v1::NodeLibrary::findLibrary("core::vector"), names);
  EXPECT_THAT(names, ElementsAre("core::vector::vector2", "core::vector::vector3",
                                 "core::vector::vector4"));
}

TEST_F(NodeLibrary, EverySubLibraryFollowsItsParentBeforeTheNextSibling) {
  std::vector<std::string> names;
  appendSubLibraries(ORV_v1::NodeLibrary::findLibrary("core"), names);
  const auto math = std::find(names.begin(), names.end(), "core::math");
  ASSERT_LT(math + 3, names.end());
  EXPECT_EQ(math[1], "core::math::integer");
  EXPECT_EQ(math[2], "core::math::trigonometry");
  EXPECT_EQ(math[3], "core::matrix");
}

TEST_F(NodeLibrary, AnswersWithItsNodes) {
  const Library library = ORV_v1::NodeLibrary::findLibrary("base");
  ASSERT_EQ(library->getNumberOfNodes(), 1u);
  EXPECT_STREQ(library->getNodeAt(0)->getName(), "base::pass");
  EXPECT_STREQ(library->getNodeAt(0)->getNiceName(), "Pass");
}

TEST_F(NodeLibrary, HasNoSubLibrariesWhenNoFileStatesAny) {
  EXPECT_EQ(ORV_v1::NodeLibrary::findLibrary("base")->getNumberOfSubLibraries(), 0u);
}

TEST_F(NodeLibrary, GivesNullHandlesPastTheEnd) {
  const Library library = ORV_v1::NodeLibrary::findLibrary("base");
  EXPECT_TRUE(library->getNodeAt(1) == nullptr);
  EXPECT_TRUE(library->getNodeAt(~0u) == nullptr);
  EXPECT_TRUE(library->getSubLibraryAt(0) == nullptr);
}

TEST(NodeLibraryHandle, OutlivesItsRegistry) {
  Library library;
  {
    orvlib::RuntimeRegistry registry;
    registry.load(VESK_SOURCE_DIR "/tests/data/library");
    library = registry.findLibrary("base");
  }
  EXPECT_STREQ(library->getNodeAt(0)->getName(), "base::pass");
}

}  // namespace
