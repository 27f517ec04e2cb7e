#include "hook/Target.h"

#include "tests/hook/HookTesting.h"

namespace {

using testing::ElementsAre;

class TargetTest : public HookTest {
 protected:
  static Texts of(const Target& target) {
    return {target.container.getName(), target.path.getName()};
  }
  static ORV_v1::Namable named(const char* name) {
    ORV_v1::Namable namable;
    namable.setName(name);
    return namable;
  }
  static std::string text(const CommandLine& line) { return line.toKString().asUTF8(); }

  int spies = 0;
};

TEST_F(TargetTest, IsTheGraphAndThePathOfANode) {
  EXPECT_THAT(of(Target(node("/"))), ElementsAre("g", "/"));
  EXPECT_THAT(of(Target(node("/group/d"))), ElementsAre("g", "/group/d"));
}

TEST_F(TargetTest, OfACompoundIsItsNode) {
  EXPECT_THAT(of(Target(compound("/group"))), ElementsAre("g", "/group"));
  EXPECT_THAT(of(Target(top())), ElementsAre("g", "/"));
}

TEST_F(TargetTest, OfAPortIsTheNodeThatHasIt) {
  EXPECT_THAT(of(Target(port("/group/d.value"))), ElementsAre("g", "/group/d"));
  EXPECT_THAT(of(Target(port("/vec.vector.x"))), ElementsAre("g", "/vec"));
  EXPECT_THAT(of(Target(inner("/group.in"))), ElementsAre("g", "/group"));
}

TEST_F(TargetTest, NamesAPortInThreeWays) {
  const PortHandle child = port("/vec.vector.x");
  EXPECT_STREQ(shortNameOf(*child), "x");
  EXPECT_STREQ(fullNameOf(child).getName(), "vector.x");
  EXPECT_STREQ(pathOf(child).getName(), "/vec.vector.x");
}

TEST_F(TargetTest, ListsTheShortNamesInOrder) {
  EXPECT_EQ(shortNamesOf(*listOf({"/group/d", "/b", "/a"})), QList<QString>({"d", "b", "a"}));
  EXPECT_EQ(shortNamesOf(*listOf({})), QList<QString>());
}

TEST_F(TargetTest, StandsAheadOfTheFlagsOrBehind) {
  EXPECT_EQ(text(lineFor("word", {named("a \"b\""), named("/c")})), R"(word "a \"b\"" "/c")");
  CommandLine line("word");
  line.flag("-flag");
  addTarget(line, {named("g"), named("/c")});
  EXPECT_EQ(text(line), R"(word -flag "g" "/c")");
}

TEST_F(TargetTest, FollowsTheGraphsName) {
  host.run("rename g \"other\"");
  EXPECT_THAT(of(Target(node("/a"))), ElementsAre("other", "/a"));
}

// The text of each kind reaches the command as it was.

TEST_F(TargetTest, AwkwardNamesReachTheCommand) {
  const Texts awkward = {"a \"b\" 'c'", "a\\b\\", "a\tb\nc\rd", "Größe", "数据",
                         "🙂",        "",       "  ",         "-flag", "a; b // c"};
  for (const std::string& name : awkward) {
    std::string arrived = "nothing";
    addProbe(host, "spy" + std::to_string(++spies),
             {.doIt = [&](auto&, const KArgList& arguments) -> KStatus {
               arrived = arguments.asString(2).asUTF8();
               return StatusSuccess;
             }});
    CommandLine line =
        lineFor(QString::fromStdString("spy" + std::to_string(spies)), Target(node("/a")));
    line.text(QString::fromStdString(name));
    host.run(text(line));
    EXPECT_EQ(arrived, name);
  }
}

}  // namespace
