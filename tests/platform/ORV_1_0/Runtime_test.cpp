#include "platform/ORV_1_0/Runtime.h"

#include <gtest/gtest.h>

#include "standalone/graph/library/RuntimeRegistry.h"
#include "testPaths.h"

namespace {

class Runtime : public testing::Test {
 protected:
  void SetUp() override { registry_.load(VESK_SOURCE_DIR "/tests/data/library"); }

  orvlib::RuntimeRegistry registry_;
};

TEST_F(Runtime, AnswersWithItsNames) {
  EXPECT_STREQ(registry_.at(0)->getName(), "empty");
  EXPECT_STREQ(registry_.at(0)->getNiceName(), "Empty");
}

TEST_F(Runtime, WithoutLibrariesHasANullRoot) {
  EXPECT_TRUE(registry_.find("empty")->getRootLibrary() == nullptr);
}

TEST_F(Runtime, AnswersWithItsRootLibrary) {
  EXPECT_STREQ(registry_.find("single")->getRootLibrary()->getName(), "base");
}

TEST_F(Runtime, AnswersWithItsPortTypes) {
  const ORV_v1::Runtime* runtime = registry_.find("single");
  ASSERT_EQ(runtime->getNumberOfPortTypes(), 1u);
  EXPECT_STREQ(runtime->getPortTypeAt(0)->getName(), "float");
}

TEST_F(Runtime, GivesANullPortTypePastTheEnd) {
  EXPECT_TRUE(registry_.find("single")->getPortTypeAt(1) == nullptr);
  EXPECT_TRUE(registry_.find("single")->getPortTypeAt(~0u) == nullptr);
}

TEST_F(Runtime, IsTheSameObjectAfterARebuild) {
  ORV_v1::Runtime* runtime = registry_.find("single");
  runtime->forceRebuildCompounds();
  EXPECT_EQ(registry_.find("single"), runtime);
  EXPECT_STREQ(runtime->getRootLibrary()->getName(), "base");
}

}  // namespace
