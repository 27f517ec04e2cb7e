#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <algorithm>

#include "tests/support/ProbeCommand.h"

namespace {

using namespace hosttest;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

TEST(AboutCommand, TellsWhetherItRunsInBatch) {
  EXPECT_EQ(Host().run("about -batch"), "true");
  vesk::SessionOptions windowed;
  windowed.batch = false;
  EXPECT_EQ(Host(windowed).run("about -q -b"), "false");
}

TEST(AboutCommand, TellsTheVersion) {
  Host host;
  EXPECT_EQ(host.run("about -version"), "\"2.1.0\"");
  EXPECT_EQ(host.run("about -v"), "\"2.1.0\"");
}

TEST(AboutCommand, WithoutFlagSaysWhatIsMissing) {
  Host host;
  EXPECT_THAT(host.refusal("about"), ElementsAre("! about: say what to tell: -batch or -version"));
}

TEST(MouseCommand, AsksAndSetsTheButtonsThatAreTracked) {
  Host host;
  EXPECT_EQ(host.run("mouse -mouseButtonTrackingStatus"), "3");
  EXPECT_EQ(host.run("mouse -mouseButtonTracking 2"), "");
  EXPECT_EQ(host.run("mouse -mbs"), "2");
  EXPECT_EQ(host.run("mouse -mbt 1 -mbs"), "1");
}

TEST(MouseCommand, WithoutFlagSaysWhatIsMissing) {
  Host host;
  EXPECT_EQ(host.refusal("mouse").size(), 1u);
}

TEST(MouseCommand, RefusesANumberThatIsNone) {
  Host host;
  EXPECT_THAT(
      host.refusal("mouse -mbt two"),
      ElementsAre("! mouse: flag -mouseButtonTracking expects a whole number, not \"two\""));
  EXPECT_EQ(host.run("mouse -mbs"), "3");
}

TEST(EchoCommand, PrintsItsArgumentsWithBlanksBetween) {
  Host host;
  host.run("echo a \"b  c\" -3 \u00e9");
  EXPECT_THAT(host.takeMessages(), ElementsAre("- a b  c -3 \u00e9"));
}

TEST(EchoCommand, PrintsEmptyTextsToo) {
  Host host;
  host.run("echo; echo \"\" a \"\" b");
  EXPECT_THAT(host.takeMessages(), ElementsAre("- ", "-  a  b"));
}

TEST(HelpCommand, ListsAllCommandsSorted) {
  ProbeHost host;
  const QByteArray json = QByteArray::fromStdString(host.run("help"));
  Texts names;
  for (const QJsonValue& name : QJsonDocument::fromJson(json).array()) {
    names.push_back(name.toString().toStdString());
  }
  EXPECT_EQ(names, host.session().registry().names());
  EXPECT_TRUE(std::is_sorted(names.begin(), names.end()));
  EXPECT_THAT(names, ::testing::IsSupersetOf({"edit", "help", "undo"}));
}

TEST(HelpCommand, DescribesACommandOfTheHost) {
  Host host;
  EXPECT_EQ(host.run("help quit"), "");
  EXPECT_THAT(host.takeMessages(),
              ElementsAre("- quit", "- Ends the program.", "-   -ec -exitCode <a whole number>"));
}

TEST(HelpCommand, ShowsThatTheLastArgumentMayBeRepeated) {
  Host host;
  host.run("help echo");
  EXPECT_EQ(host.takeMessages().front(), "- echo <a text> ...");
}

TEST(HelpCommand, DescribesModesTypesAndMultiUseOfAnyCommand) {
  KSyntax syntax;
  syntax.enableQuery(true);
  syntax.enableEdit(true);
  syntax.addFlag("p", "pairs", KSyntax::ArgString, KSyntax::ArgBoolean);
  syntax.makeFlagMultiUse("p");
  syntax.addFlag("-f", "-force");
  syntax.addArg(KSyntax::ArgUnsigned);
  ProbeHost host;
  addProbe(host, "probe", {}, syntax);
  host.run("help probe");
  EXPECT_THAT(
      host.takeMessages(),
      ElementsAre("- probe <a whole number from 0>", "-   -q -query", "-   -e -edit",
                  "-   -p -pairs <a text> <true or false>  (may be repeated)", "-   -f -force"));
}

TEST(HelpCommand, RefusesAnUnknownCommand) {
  Host host;
  EXPECT_THAT(host.refusal("help no\u00e9"), ElementsAre("! help: unknown command \"no\u00e9\""));
}

TEST(HelpCommand, RefusesMoreThanOneName) {
  Host host;
  EXPECT_EQ(host.status("help undo redo"), StatusBadArgument);
  EXPECT_EQ(host.takeMessages().size(), 1u);
}

}  // namespace
