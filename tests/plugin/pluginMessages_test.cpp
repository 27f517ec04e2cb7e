#include "plugin/pluginMessages.h"

#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>

#include "platform/OpenVesk/KStringResource.h"
#include "standalone/host/engine/HostAccess.h"
#include "testPaths.h"
#include "tests/plugin/ModuleTesting.h"

namespace {

using testing::ElementsAre;

struct Row {
  const char* key;
  const char* text;
};

constexpr Row kCatalogue[] = {
    {"rParsingError", "Invalid parameters detected.  Exiting."},
    {"rTooFewArgsError", "Too few arguments given."},
    {"rPortNotFoundError", "A port named ^2s was not found on ^1s"},
    {"rUnknowPortTypeError", "Unknown port type ^1s"},
    {"rInvalidArgumentCountError", "Wrong number of arguments provided"},
    {"rAnnotationNameNotFoundError", "Backdrop/Sticky named ^1s was not found in ^2s"},
    {"rEmptyAnnotationMetaDataNameError",
     "The backdrop/sticky name ^1s and the metadata name ^2s cannot be empty"},
    {"rEmptyPortTypeNameError", "The port name ^1s and the data type ^2s cannot be empty"},
    {"rEmptyPortMetaDataNameError", "The port name ^1s and the metadata name ^2s cannot be empty"},
    {"rEmptyPortNameError", "The port name ^1s cannot be empty"},
    {"rInvalidPortOptions", "Invalid port options \"^1s\""},
    {"rEmptyMetadataError", "The metadata name cannot be empty"},
    {"rInvalidMetadataError", "Invalid metadata string format"},
    {"rInvalidORVContainerError", "^1s is not a DG ORV container"},
    {"rInvalidCompoundNameError", "^1s is not a compound name"},
    {"rInvalidNodedNameError", "^1s is not a node name"},
    {"rNodeNameNotFoundError", "Node named ^1s was not found in ^2s"},
    {"rNodeNotMovedWarning", "Node named ^1s was not found and will not be moved into ^2s"},
    {"rAnnotationNotMovedWarning",
     "Backdrop/Sticky named ^1s was not found and will not be moved into ^2s"},
    {"rCreateCompoundError", "Failed to create compound"},
    {"rNodePathNotFoundError", "The node path ^1s was not found"},
    {"rCompoundCannotBeReset", "Compound named ^1s cannot be reset to factory"},
    {"rCompoundNotEditable", "The compound is not editable"},
    {"rMetaCommandNoEdit", "This command does not support edits."},
    {"rMetaCommandBadArguments", "^1s expects type ^2s"},
    {"rRegisterCommandError", "Failed to register plugin command: ^1s"},
    {"rEditFlagNotCombinable", "Edit flag cannot be combined with other flags"},
    {"rCompoundEditorNotFound", "A compound editor by that name was not found"},
    {"rCompoundEditorBlank", "The compound editor must not be empty for this flag"},
    {"rNoCompoundEditor", "No compound editors found"},
    {"rFlagRequiresQuery", "Command flag requires Query mode (-q)"},
    {"rFlagIsNotQuery", "Invalid command flag for Query mode"},
};

/// The host's text for a key of the module; `status` fails for one that nobody registered.
std::string hostText(const char* key, KStatus& status) {
  const KStringResourceId id("orvCmdPlugin", key, "not registered");
  return KStringResource::getString(id, status).asUTF8();
}

std::string hostText(const char* key) {
  KStatus status;
  return hostText(key, status);
}

class PluginMessages : public ModuleTest {
 protected:
  PluginMessages() { registerMessages(); }
};

class GermanMessages : public ModuleTest {
 protected:
  GermanMessages() : ModuleTest("de") { registerMessages(); }
};

TEST_F(ModuleTest, TheHostKnowsNoTextBeforeTheModuleIsLoaded) {
  KStatus status;
  hostText("rParsingError", status);
  EXPECT_EQ(status.statusCode(), StatusFailure);
}

TEST_F(ModuleTest, TheModuleRegistersItsTextsWithTheirKeys) {
  ASSERT_TRUE(load());
  for (const Row& row : kCatalogue) {
    KStatus status;
    EXPECT_EQ(hostText(row.key, status), row.text);
    EXPECT_TRUE(status) << row.key;
  }
}

TEST_F(ModuleTest, TheModuleRegistersItsTextsInOrder) {
  ASSERT_TRUE(load());
  const std::vector<std::string> calls = takeRecordedCalls();
  ASSERT_GE(calls.size(), std::size(kCatalogue));
  for (std::size_t i = 0; i < std::size(kCatalogue); ++i) {
    EXPECT_EQ(calls[i], std::string("registerString ") + kCatalogue[i].key);
  }
}

TEST_F(ModuleTest, TheTextsStayWhenTheModuleIsUnloaded) {
  ASSERT_TRUE(load());
  ASSERT_TRUE(unload());
  EXPECT_EQ(hostText("rCreateCompoundError"), "Failed to create compound");
}

TEST_F(PluginMessages, AMessageIdIsThePositionOfItsText) {
  ASSERT_EQ(std::size(kCatalogue), std::size_t{kMessageCount});
  for (int id = 0; id < kMessageCount; ++id) {
    KString text;
    KStatus status;
    getMessage(text, MessageId(id), status);
    EXPECT_STREQ(text.asUTF8(), kCatalogue[id].text) << id;
    EXPECT_TRUE(status);
  }
}

TEST_F(PluginMessages, TheArgumentsTakeTheirPlacesByNumber) {
  displayError(rPortNotFoundError, "owner", "port");
  displayWarning(rNodeNotMovedWarning, "add", "group");
  EXPECT_THAT(takeMessages(), ElementsAre("! A port named port was not found on owner",
                                          "? Node named add was not found and will not be moved "
                                          "into group"));
}

TEST_F(PluginMessages, OneArgumentTakesTheFirstPlaceAndLeavesTheSecond) {
  displayError(rMetaCommandBadArguments, "lib");
  displayWarning(rInvalidPortOptions, "hidden");
  EXPECT_THAT(takeMessages(),
              ElementsAre("! lib expects type ^2s", "? Invalid port options \"hidden\""));
}

TEST_F(PluginMessages, WithoutArgumentsTheTextStandsAsItIs) {
  displayError(rUnknowPortTypeError);
  displayWarning(rPortNotFoundError);
  EXPECT_THAT(takeMessages(),
              ElementsAre("! Unknown port type ^1s", "? A port named ^2s was not found on ^1s"));
}

TEST_F(PluginMessages, AnEmptyArgumentLeavesAGap) {
  displayError(rEmptyPortNameError, "");
  EXPECT_THAT(takeMessages(), ElementsAre("! The port name  cannot be empty"));
}

TEST_F(PluginMessages, ArgumentsBeyondAsciiComeOutWhole) {
  KString name;
  name.setUTF8("Größe雪");
  displayError(rInvalidNodedNameError, name);
  EXPECT_THAT(takeMessages(), ElementsAre("! Größe雪 is not a node name"));
}

TEST_F(PluginMessages, ATextOfTheGraphLibraryIsShownAsItIs) {
  displayError(KString("cannot connect ^1s"));
  EXPECT_THAT(takeMessages(), ElementsAre("! cannot connect ^1s"));
}

TEST_F(PluginMessages, TheCallersOwnFormatTakesArgumentsToo) {
  displayErrorFormat("one is ^1s, two ^2s", "a");
  displayErrorFormat("two is ^2s, one ^1s", "a", "b");
  EXPECT_THAT(takeMessages(), ElementsAre("! one is a, two ^2s", "! two is b, one a"));
}

std::size_t count(const std::string& text, const std::string& part) {
  std::size_t found = 0;
  for (std::size_t at = 0; (at = text.find(part, at)) != text.npos; ++at) ++found;
  return found;
}

TEST_F(GermanMessages, EveryTextIsTranslatedAndKeepsItsArguments) {
  for (const Row& row : kCatalogue) {
    const std::string german = hostText(row.key);
    EXPECT_NE(german, row.text) << row.key;
    for (const char* place : {"^1s", "^2s", "^"}) {
      EXPECT_EQ(count(german, place), count(row.text, place)) << row.key << " " << place;
    }
  }
}

TEST_F(GermanMessages, TheArgumentsTakeTheirPlacesByNumber) {
  displayError(rPortNotFoundError, "owner", "port");
  EXPECT_THAT(takeMessages(), ElementsAre("! Ein Port namens port wurde an owner nicht gefunden"));
}

TEST_F(GermanMessages, TheCatalogueHasNoKeyThatIsNotRegistered) {
  QFile file(VESK_SOURCE_DIR "/catalogues/de/orvCmdPlugin.json");
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  for (const QString& key : QJsonDocument::fromJson(file.readAll()).object().keys()) {
    KStatus status;
    hostText(key.toStdString().c_str(), status);
    EXPECT_TRUE(status) << key.toStdString();
  }
}

}  // namespace
