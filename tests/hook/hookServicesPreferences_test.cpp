// Preferences, which live in an option variable of the host.

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include "platform/orvUI_1_0/UserPrefs.h"
#include "standalone/host/engine/OptionVariables.h"
#include "standalone/widgets/preferences/Preferences.h"
#include "tests/hook/HookTesting.h"
#include "tests/hook/LibraryOperation.h"
#include "tests/support/Latin1Locale.h"

namespace {

/// What the hook told the library: of the mouse, and as preferences.
std::vector<int> toldMouseButtons;
hosttest::Texts toldPreferences;

}  // namespace

/// These come ahead of the library's own, which pass over what the hook should not tell.
void orvUI_v1::setNumberOfMouseButtons(int count) { toldMouseButtons.push_back(count); }

void orvUI_v1::setUserPrefs(const QJsonDocument& preferences) {
  toldPreferences.push_back(
      preferences.isNull() ? "null" : preferences.toJson(QJsonDocument::Compact).data());
  static const auto own =
      libraryOperation<void, const QJsonDocument&>("_ZN8orvUI_v112setUserPrefsERK13QJsonDocument");
  own(preferences);
}

namespace {

using orvuilib::Preferences;
using testing::ElementsAre;
using testing::IsEmpty;

const Trace kExists = silent(R"(optionVar -exists "orvUIUserPrefs")");
const Trace kQuery = silent(R"(optionVar -query "orvUIUserPrefs")");
const Trace kMouse = silent("mouse -mouseButtonTrackingStatus");

class HookPreferences : public HookTest {
 protected:
  HookPreferences() {
    preferences().replaceAll(QJsonObject{{"kept", true}});
    toldMouseButtons.clear();
    toldPreferences.clear();
  }

  static Preferences& preferences() { return Preferences::instance(); }
  static std::string held() {
    return QJsonDocument(preferences().all()).toJson(QJsonDocument::Compact).toStdString();
  }

  void store(vesk::OptionVariables::Value value) {
    ASSERT_TRUE(host.session().optionVariables().set("orvUIUserPrefs", std::move(value)));
  }

  /// The text of the option variable; "none" when there is none.
  std::string storedText() {
    const auto* value = host.session().optionVariables().find("orvUIUserPrefs");
    return value ? std::get<std::string>(*value) : "none";
  }

  Trace load() {
    return traceOf([] { services().syncUserPrefs(1); });
  }
  Trace save(int direction = 0) {
    return traceOf([direction] { services().syncUserPrefs(direction); });
  }
};

TEST_F(HookPreferences, AreStoredAsCompactJson) {
  preferences().replaceAll({{"grid", QJsonObject{{"size", 4}, {"name", "a \"b\" \\ 数据🙂"}}}});
  const std::string json = held();
  std::string escaped;
  for (const char c : json) escaped += (c == '"' || c == '\\' ? "\\" : "") + std::string(1, c);
  EXPECT_EQ(save(), silent("optionVar -stringValue \"orvUIUserPrefs\" \"" + escaped + "\""));
  EXPECT_EQ(storedText(), json);
}

TEST_F(HookPreferences, AreStoredForEveryDirectionButOne) {
  for (const int direction : {0, 2, -1}) {
    EXPECT_EQ(save(direction),
              silent(R"(optionVar -stringValue "orvUIUserPrefs" "{\"kept\":true}")"))
        << direction;
  }
}

TEST_F(HookPreferences, ComeBackAsTheyWereStored) {
  const QJsonObject all{{"grid", QJsonObject{{"size", 4}, {"name", "a \"b\" \\ \t\n数据🙂"}}}};
  preferences().replaceAll(all);
  save();
  preferences().replaceAll({{"other", 1}});
  EXPECT_EQ(load(), kExists + kQuery + kMouse);
  EXPECT_EQ(preferences().all(), all);
}

TEST_F(HookPreferences, AreLeftAloneWithoutAnOptionVariable) {
  EXPECT_EQ(load(), kExists + kMouse) << "the mouse is asked all the same";
  EXPECT_EQ(held(), R"({"kept":true})");
}

TEST_F(HookPreferences, AreLeftAloneByWhatIsNoJson) {
  for (const std::string text : {"", "nonsense", "{\"a\":", "{'a':1}", "4", "\"text\"", "null"}) {
    store(text);
    EXPECT_EQ(load(), kExists + kQuery + kMouse) << text;
    EXPECT_EQ(held(), R"({"kept":true})") << text;
  }
  EXPECT_THAT(toldPreferences, IsEmpty());
}

TEST_F(HookPreferences, AreToldAsTheDocumentThatWasStored) {
  for (const std::string text : {"[1,2]", "{}", "[]", "{\"a\":1}"}) {
    toldPreferences.clear();
    store(text);
    load();
    EXPECT_THAT(toldPreferences, ElementsAre(text));
  }
}

TEST_F(HookPreferences, AreUtf8WhateverTheLocale) {
  const hosttest::Latin1Locale locale;
  const QJsonObject all{{"Größe", "数据🙂"}};
  preferences().replaceAll(all);
  save();
  EXPECT_EQ(storedText(), R"({"Größe":"数据🙂"})");
  preferences().replaceAll({{"other", 1}});
  load();
  EXPECT_EQ(preferences().all(), all);
}

TEST_F(HookPreferences, AreLeftAloneByAnArray) {
  store("[1,2]");
  load();
  EXPECT_EQ(held(), R"({"kept":true})");
}

TEST_F(HookPreferences, AreLeftAloneByANumber) {
  store(4);
  EXPECT_EQ(load(), kExists + kQuery + kMouse);
  EXPECT_EQ(held(), R"({"kept":true})");
}

TEST_F(HookPreferences, MayBeEmpty) {
  store("{}");
  load();
  EXPECT_EQ(held(), "{}");
}

TEST_F(HookPreferences, ThatAreTakenAwayAreStoredAsNone) {
  store("{\"a\":1}");
  preferences().replaceAll({});
  EXPECT_EQ(save(), silent(R"(optionVar -stringValue "orvUIUserPrefs" "{}")"));
  EXPECT_EQ(storedText(), "{}");
}

TEST_F(HookPreferences, MayBeHuge) {
  QJsonObject all;
  for (int i = 0; i < 20000; ++i) all.insert("key " + QString::number(i), QString(50, 'x'));
  preferences().replaceAll(all);
  save();
  preferences().replaceAll({{"other", 1}});
  load();
  EXPECT_EQ(preferences().all(), all);
}

TEST_F(HookPreferences, MouseButtonsFromOneToThreeAreTold) {
  for (const int count : {1, 2, 3}) {
    host.session().mouseButtons = count;
    load();
  }
  EXPECT_THAT(toldMouseButtons, ElementsAre(1, 2, 3));
}

TEST_F(HookPreferences, OtherNumbersOfMouseButtonsAreNot) {
  for (const int count : {0, 4, -1}) {
    host.session().mouseButtons = count;
    load();
  }
  EXPECT_THAT(toldMouseButtons, IsEmpty());
}

TEST_F(HookPreferences, AMouseThatCannotBeAskedIsPassedOver) {
  replace("mouse", {.doIt = [](KPxCommand& command, auto&) -> KStatus {
            command.setResult(1u);
            return StatusFailure;
          }});
  load();
  EXPECT_THAT(toldMouseButtons, IsEmpty());
}

TEST_F(HookPreferences, AMouseThatGivesNoNumberIsPassedOver) {
  replace("mouse", {.doIt = [](KPxCommand& command, auto&) -> KStatus {
            command.setResult("three");
            return StatusSuccess;
          }});
  load();
  EXPECT_THAT(toldMouseButtons, IsEmpty());
}

TEST_F(HookPreferences, AnOptionVariableIsThereForOneAlone) {
  replace("optionVar", {.doIt = [](KPxCommand& command, auto&) -> KStatus {
            command.setResult(2u);
            return StatusSuccess;
          }});
  EXPECT_EQ(load(), kExists + kMouse);
  EXPECT_THAT(toldPreferences, IsEmpty());
}

TEST_F(HookPreferences, OfAnOptionVariableTheResultsAloneAreLookedAt) {
  bool asked = false;
  replace("optionVar", {.doIt = [&asked](KPxCommand& command, auto&) -> KStatus {
            if (std::exchange(asked, true)) {
              command.setResult("{\"a\":1}");
            } else {
              command.setResult(1u);
            }
            return StatusFailure;
          }});
  load();
  EXPECT_THAT(toldPreferences, ElementsAre(R"({"a":1})"));
}

TEST_F(HookPreferences, AnOptionVariableThatCannotBeAskedIsPassedOver) {
  store("{\"a\":1}");
  replace("optionVar", {.doIt = [](auto&, auto&) -> KStatus { return StatusFailure; }});
  load();
  EXPECT_THAT(toldPreferences, IsEmpty());
}

/// A program in which no preference was ever set.
class HookFirstPreferences : public HookTest {
 protected:
  HookFirstPreferences() { testing::FLAGS_gtest_death_test_style = "threadsafe"; }

  /// How saving went: 0 for no line.
  int saveNothing() {
    const Trace trace = traceOf([] { services().syncUserPrefs(0); });
    return trace == Trace{} ? 0 : 1;
  }
};

TEST_F(HookFirstPreferences, WithoutAnyNothingIsStored) {
  EXPECT_EXIT(std::_Exit(saveNothing()), testing::ExitedWithCode(0), "");
}

}  // namespace
