#include "standalone/colour/colorManagementCommand.h"

#include <gmock/gmock.h>

#include "tests/standalone/colour/ColourTesting.h"
#include "tests/support/HostTest.h"

namespace {

using ::testing::ElementsAre;
using vesk::colour::ColourService;
using vesk::colour::registerColorManagementCommand;

class ColorManagementCommand : public ::testing::Test {
 protected:
  ColorManagementCommand() { registerColorManagementCommand(host.session().registry()); }

  hosttest::Host host;
  vesk::colour::testing::TemporaryFolder folder;
  std::string file = folder.write("plain.ocio", vesk::colour::testing::kPlainConfiguration);
};

TEST_F(ColorManagementCommand, TellsWhatThereIs) {
  const ColourService service({.configuration = file});
  EXPECT_EQ(host.run("colorManagement -listMixingSpaces"),
            R"(["Light","Broken","Monitor","Code"])");
  EXPECT_EQ(host.run("colorManagement -configuration"), '"' + file + '"');
  EXPECT_EQ(host.run("colorManagement -q -enable"), "true");
}

TEST_F(ColorManagementCommand, ChoosesSpaceAndView) {
  const ColourService service({.configuration = file});
  host.run("colorManagement -mixingSpace \"Light\"");
  EXPECT_EQ(host.run("colorManagement -q -mixingSpace"), "\"Light\"");
  EXPECT_EQ(host.run("colorManagement -q -view"), "\"\"");
  EXPECT_EQ(host.run("colorManagement -listViews"), "[]");
  host.run("colorManagement -mixingSpace \"Monitor\"");
  EXPECT_EQ(host.run("colorManagement -listViews"), R"(["Plain","Lost"])");
  host.run("colorManagement -view \"Plain\"");
  EXPECT_EQ(service.screen().view, "Plain");
}

TEST_F(ColorManagementCommand, RefusesWhatIsNotThere) {
  const ColourService service({.configuration = file});
  host.run("colorManagement -mixingSpace \"Monitor\"");
  EXPECT_EQ(host.status("colorManagement -mixingSpace \"Dark\""), StatusBadArgument);
  EXPECT_THAT(host.takeMessages(), ElementsAre("? There is no mixing space 'Dark' in colour "
                                               "configuration '" +
                                               file + "'"));
  EXPECT_EQ(host.status("colorManagement -view \"Lost\""), StatusFailure);
  EXPECT_EQ(host.takeMessages().size(), 1u);
  EXPECT_EQ(host.run("colorManagement -q -mixingSpace"), "\"Monitor\"");
  EXPECT_EQ(host.run("colorManagement -q -view"), "\"Plain\"");
}

TEST_F(ColorManagementCommand, HasNoSpacesWhileItIsOff) {
  const ColourService service({.configuration = file});
  const std::string space = host.run("colorManagement -q -mixingSpace");
  host.run("colorManagement -enable false");
  EXPECT_EQ(host.run("colorManagement -q -enable"), "false");
  for (const char* line : {"colorManagement -listMixingSpaces", "colorManagement -q -view",
                           "colorManagement -mixingSpace \"Light\""}) {
    EXPECT_THAT(host.refusal(line), ElementsAre("! colorManagement: colour management is off"));
  }
  host.run("colorManagement -enable true");
  EXPECT_EQ(host.run("colorManagement -q -mixingSpace"), space);
}

TEST_F(ColorManagementCommand, TakesOneQuestionOrChangeALine) {
  const ColourService service({.configuration = file});
  const hosttest::Texts refusal{"! colorManagement: say one thing to ask or change"};
  EXPECT_EQ(host.refusal("colorManagement"), refusal);
  EXPECT_EQ(host.refusal("colorManagement -listViews -enable true"), refusal);
}

TEST_F(ColorManagementCommand, NeedsColourManagementToBeThere) {
  EXPECT_THAT(host.refusal("colorManagement -listViews"),
              ElementsAre("! colorManagement: there is no colour management"));
}

TEST_F(ColorManagementCommand, ChangesAreHeardOf) {
  ColourService service({.configuration = file});
  int changes = 0;
  service.setChangeListener([&changes] { ++changes; });
  host.run("colorManagement -enable false");
  host.run("colorManagement -enable false");
  EXPECT_EQ(changes, 1);
  host.run("colorManagement -enable true");
  host.run("colorManagement -mixingSpace \"Code\"");
  EXPECT_EQ(changes, 3);
  host.status("colorManagement -mixingSpace \"Dark\"");
  host.takeMessages();
  EXPECT_EQ(changes, 3);
}

}  // namespace
