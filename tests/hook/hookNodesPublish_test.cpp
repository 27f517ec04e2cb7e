// Publishing compounds, and those that come from a published one.

#include "standalone/graph/library/RuntimeRegistry.h"
#include "testPaths.h"
#include "tests/hook/HookTesting.h"

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

/// A graph with a folder to publish to.
class HookPublishing : public HookTest {
 protected:
  HookPublishing() {
    runtimes_.setPublishedFolder(files_.path("published"));
    EXPECT_THAT(runtimes_.load(VESK_SOURCE_DIR "/library"), IsEmpty());
    runtimes_.makeCurrent();
  }

  std::string published(const std::string& name) const {
    return files_.read("published/standard/" + name + ".yaml");
  }

  bool publishGroup(const char* description, bool replaces) {
    return hook().publish(compound("/group"), "soft", nullptr, description, replaces);
  }

  hosttest::TemporaryFiles files_;

 private:
  orvlib::RuntimeRegistry runtimes_;
};

TEST_F(HookPublishing, PublishTellsWhetherItDid) {
  EXPECT_EQ(traceOf([&] { EXPECT_TRUE(publishGroup("First.", false)); }).journal,
            Texts{R"(orvCompound "g" "/group" -publish "soft" "" "First." false)"});
  EXPECT_THAT(published("core.soft"), HasSubstr("First."));
}

TEST_F(HookPublishing, PublishReplacesOnRequest) {
  EXPECT_TRUE(publishGroup("First.", false));
  EXPECT_EQ(traceOf([&] { EXPECT_TRUE(publishGroup("Second.", true)); }).journal,
            Texts{R"(orvCompound "g" "/group" -publish "soft" "" "Second." true)"});
  EXPECT_THAT(published("core.soft"), HasSubstr("Second."));
}

TEST_F(HookPublishing, PublishKeepsTheOrderOfItsTexts) {
  EXPECT_TRUE(hook().publish(compound("/group"), "mild", "core::tools", "Text.", false));
  EXPECT_THAT(published("core.tools.mild"), HasSubstr("compound: core::tools::mild\n"));
  EXPECT_THAT(published("core.tools.mild"), HasSubstr("description: \"Text.\"\n"));
}

TEST_F(HookPublishing, PublishGraphPassesOnFourTexts) {
  const std::string file = files_.path("whole.yaml");
  const Trace trace = traceOf([&] {
    EXPECT_TRUE(hook().publishGraph(top(), "whole", "core::tools", "All.", file.c_str()));
  });
  const std::string line =
      R"(orvCompound "g" "/" -publishGraph "whole" "core::tools" "All." ")" + file + "\"";
  EXPECT_EQ(trace.journal, Texts{line});
  EXPECT_THAT(trace.echoes, ElementsAre(line));
  EXPECT_THAT(files_.read("whole.yaml"), HasSubstr("compound: core::tools::whole\n"));
}

/// The line did its work: it tells why nothing is published, and gives 0.
TEST_F(HookPublishing, ARefusalOfTheLibraryIsNoFailedLine) {
  EXPECT_TRUE(publishGroup("First.", false));
  EXPECT_TRUE(publishGroup("Second.", false)) << "the name is taken";
  EXPECT_THAT(published("core.soft"), HasSubstr("First."));
  EXPECT_THAT(host.takeMessages(), SizeIs(1));
}

TEST_F(HookPublishing, AFailedLineIsFalse) {
  replace("orvCompound", {.doIt = [](auto&, auto&) -> KStatus { return StatusFailure; }});
  EXPECT_FALSE(publishGroup("", false));
  EXPECT_FALSE(hook().publishGraph(top(), "whole", "", "", ""));
}

TEST_F(HookPublishing, AFailedLineIsFalseUnlessItGaveOne) {
  replaceByFailure("orvCompound");
  EXPECT_TRUE(publishGroup("", false));
  EXPECT_TRUE(hook().publishGraph(top(), "whole", "", "", ""));
  failureResult = 2;
  EXPECT_FALSE(publishGroup("", false));
  EXPECT_FALSE(hook().publishGraph(top(), "whole", "", "", ""));
}

TEST_F(HookPublishing, SetIsReferencedFollowsThePublishedCompound) {
  EXPECT_TRUE(publishGroup("", false));
  for (const bool referenced : {true, false}) {
    EXPECT_EQ(traceOf([&] { hook().setIsReferenced(compound("/group"), referenced); }),
              edit(std::string(R"(orvCompound "g" "/group" -setIsReferenced )") +
                   (referenced ? "true" : "false")));
    EXPECT_EQ(compound("/group")->isReferenced(), referenced);
  }
}

TEST_F(HookPublishing, ResetToFactoryNamesTheCompoundAndItsOwnLevel) {
  // The command looks for the name below the level, so only a namesake inside is found.
  build("/group", "-create group");
  EXPECT_TRUE(hook().publish(compound("/group/group"), "soft", "", "", false));
  build("/group/group", "-addNode core::math::add");
  ASSERT_TRUE(compound("/group/group")->canResetToFactory());
  const Trace trace = traceOf([&] { hook().resetToFactory(compound("/group")); });
  EXPECT_EQ(trace, edit(R"(orvCompound -resetToFactory "group" "g" "/group")"));
  EXPECT_THAT(nodes("/group/group"), IsEmpty());
}

}  // namespace
