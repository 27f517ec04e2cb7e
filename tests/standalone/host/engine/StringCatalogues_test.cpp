#include "standalone/host/engine/StringCatalogues.h"

#include <QDir>
#include <QJsonDocument>
#include <QJsonObject>

#include "platform/OpenVesk/KStringResource.h"
#include "standalone/host/engine/HostAccess.h"
#include "testPaths.h"
#include "tests/standalone/host/scene/SceneTools.h"

namespace vesk {
namespace {

using ::testing::AllOf;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using vesk::testing::LineHost;
using vesk::testing::MessageLog;
using vesk::testing::readFile;
using vesk::testing::TemporaryFolder;
using vesk::testing::writeFile;

class Catalogues : public ::testing::Test {
 protected:
  /// Writes `<folder>/<language>/plug.json`.
  void write(const std::string& folder, const std::string& language, std::string_view text) {
    QDir().mkpath(QString::fromStdString(folder_.path(folder + "/" + language)));
    writeFile(folder_.path(folder + "/" + language + "/plug.json"), text);
  }

  StringCatalogues make(std::string_view language) {
    StringCatalogues catalogues({folder_.path("one"), folder_.path("two")}, language, messages_);
    catalogues.registerText("plug", "yes", "Yes");
    catalogues.registerText("plug", "no", "No");
    return catalogues;
  }

  TemporaryFolder folder_;
  MessageChannel messages_;
  MessageLog log_{messages_};
};

TEST_F(Catalogues, GiveTheTranslatedText) {
  write("one", "de", R"({"yes": "Jawohl, Größe"})");
  EXPECT_EQ(make("de").lookup("plug", "yes"), "Jawohl, Größe");
}

TEST_F(Catalogues, GiveTheDefaultTextForAKeyWithoutTranslation) {
  write("one", "de", R"({"yes": "Ja", "no": ""})");
  EXPECT_EQ(make("de").lookup("plug", "no"), "No");
}

TEST_F(Catalogues, GiveTheDefaultTextWithoutALanguageOrCatalogue) {
  write("one", "de", R"({"yes": "Ja"})");
  for (const char* language : {"", "C", "fr", "fr_CH", "../one/de", "."}) {
    EXPECT_EQ(make(language).lookup("plug", "yes"), "Yes") << language;
  }
}

TEST_F(Catalogues, FallBackFromARegionToItsLanguage) {
  write("one", "de", R"({"yes": "Ja", "no": "Nein"})");
  write("one", "de_AT", R"({"no": "Na"})");
  for (const char* language : {"de_AT", "de-AT", "de_AT.UTF-8", "de_AT@euro"}) {
    StringCatalogues catalogues = make(language);
    EXPECT_EQ(catalogues.lookup("plug", "yes"), "Ja") << language;
    EXPECT_EQ(catalogues.lookup("plug", "no"), "Na") << language;
  }
}

TEST_F(Catalogues, PreferAnEarlierFolder) {
  write("one", "de", R"({"yes": "Erstens"})");
  write("two", "de", R"({"yes": "Zweitens", "no": "Nein"})");
  StringCatalogues catalogues = make("de");
  EXPECT_EQ(catalogues.lookup("plug", "yes"), "Erstens");
  EXPECT_EQ(catalogues.lookup("plug", "no"), "Nein");
}

TEST_F(Catalogues, PreferTheRegionInALaterFolderToTheLanguage) {
  write("one", "de", R"({"yes": "Ja"})");
  write("two", "de_AT", R"({"yes": "Jo"})");
  EXPECT_EQ(make("de_AT").lookup("plug", "yes"), "Jo");
}

TEST_F(Catalogues, KnowNoTextThatWasNotRegistered) {
  write("one", "de", R"({"other": "Anderes"})");
  StringCatalogues catalogues = make("de");
  EXPECT_EQ(catalogues.lookup("plug", "other"), std::nullopt);
  EXPECT_EQ(catalogues.lookup("none", "yes"), std::nullopt);
}

TEST_F(Catalogues, TakeTheDefaultTextRegisteredLast) {
  StringCatalogues catalogues = make("");
  catalogues.registerText("plug", "yes", "Yes!");
  EXPECT_EQ(catalogues.lookup("plug", "yes"), "Yes!");
}

TEST_F(Catalogues, AreReadOnceOnFirstNeed) {
  StringCatalogues catalogues = make("de");
  write("one", "de", R"({"yes": "Ja"})");
  EXPECT_EQ(catalogues.lookup("plug", "yes"), "Ja");
  write("one", "de", R"({"yes": "Doch"})");
  EXPECT_EQ(catalogues.lookup("plug", "yes"), "Ja");
}

TEST_F(Catalogues, ReadNoFileOutsideTheirFolders) {
  write("one", "de", R"({"yes": "Ja"})");
  QDir().mkpath(QString::fromStdString(folder_.path("one/fr")));
  StringCatalogues catalogues = make("fr");
  catalogues.registerText("../de/plug", "yes", "Yes");
  EXPECT_EQ(catalogues.lookup("../de/plug", "yes"), "Yes");
}

class DamagedCatalogues
    : public Catalogues,
      public ::testing::WithParamInterface<std::pair<const char*, const char*>> {};

TEST_P(DamagedCatalogues, AreReportedOnceAndGiveDefaults) {
  write("one", "de", GetParam().first);
  StringCatalogues catalogues = make("de");
  EXPECT_EQ(catalogues.lookup("plug", "yes"), "Yes");
  EXPECT_EQ(catalogues.lookup("plug", "no"), "No");
  EXPECT_THAT(log_.take(), ElementsAre(AllOf(HasSubstr(folder_.path("one/de/plug.json")),
                                             HasSubstr(GetParam().second))));
}

INSTANTIATE_TEST_SUITE_P(
    All, DamagedCatalogues,
    ::testing::Values(std::pair{"", "line 1, column 1"}, std::pair{"{\n\"yes\": ", "line 2"},
                      std::pair{"[]", "no JSON object"},
                      std::pair{R"({"yes": "Ja", "no": 1})", "\"no\" has no text"}));

TEST_F(Catalogues, ADamagedOneDoesNotSpoilTheOthers) {
  write("one", "de", "damaged");
  write("two", "de", R"({"yes": "Ja"})");
  EXPECT_EQ(make("de").lookup("plug", "yes"), "Ja");
  EXPECT_EQ(log_.take().size(), 1u);
}

TEST(GermanCatalogue, HasTheTextsOfTheModuleWithTheirArguments) {
  const std::string bytes = readFile(VESK_SOURCE_DIR "/catalogues/de/orvCmdPlugin.json");
  const QJsonObject texts = QJsonDocument::fromJson(QByteArray::fromStdString(bytes)).object();
  EXPECT_EQ(texts.size(), 32);
  for (const QJsonValue& text : texts) EXPECT_FALSE(text.toString().isEmpty());
  EXPECT_TRUE(texts["rPortNotFoundError"].toString().contains("^2s"));
  EXPECT_TRUE(texts["rPortNotFoundError"].toString().contains("^1s"));
  EXPECT_EQ(texts["rInvalidPortOptions"].toString(),
            QStringLiteral("Ungültige Port-Optionen \"^1s\""));
  EXPECT_FALSE(texts["rNoCompoundEditor"].toString().contains("^"));
}

KStringResourceId resource(const char* plugin, const char* key, const char* text) {
  return KStringResourceId(plugin, key, KString(text));
}

TEST(StringResources, AreTranslatedByTheSession) {
  SessionOptions options;
  options.catalogueFolders = {VESK_SOURCE_DIR "/catalogues"};
  options.language = "de_AT";
  const LineHost host(options);
  const KStringResourceId id =
      resource("orvCmdPlugin", "rEmptyPortNameError", "The port name ^1s cannot be empty");
  EXPECT_TRUE(KStringResource::registerString(id));
  KStatus status = StatusFailure;
  EXPECT_EQ(HostAccess::text(KStringResource::getString(KStringResourceId(id), status)),
            "Der Portname ^1s darf nicht leer sein");
  EXPECT_TRUE(status);
}

TEST(StringResources, NotRegisteredGiveTheirOwnDefaultAndAFailure) {
  const LineHost host;
  KStatus status;
  EXPECT_TRUE(KStringResource::getString(resource("p", "k", "Text"), status) == "Text");
  EXPECT_EQ(status.statusCode(), StatusFailure);
}

TEST(StringResources, NeedAPluginIdAndAKey) {
  const LineHost host;
  EXPECT_EQ(KStringResource::registerString(resource("", "k", "t")).statusCode(),
            StatusBadArgument);
  EXPECT_EQ(KStringResource::registerString(resource("p", "", "t")).statusCode(),
            StatusBadArgument);
  EXPECT_EQ(KStringResource::registerString(KStringResourceId()).statusCode(), StatusBadArgument);
}

TEST(StringResources, WithoutASessionGiveTheirDefault) {
  ASSERT_EQ(HostSession::current(), nullptr);
  const KStringResourceId id = resource("p", "k", "Text");
  EXPECT_FALSE(KStringResource::registerString(id));
  KStatus status;
  EXPECT_TRUE(KStringResource::getString(id, status) == "Text");
  EXPECT_FALSE(status);
}

}  // namespace
}  // namespace vesk
