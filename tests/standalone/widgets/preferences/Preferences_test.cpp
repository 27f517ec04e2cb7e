#include "standalone/widgets/preferences/Preferences.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QJsonArray>
#include <QJsonDocument>

#include "platform/orvUI_1_0/UserPrefs.h"
#include "tests/standalone/widgets/hooks/IdleHooks.h"

namespace {

using orvUI_v1::getUserPrefs;
using orvUI_v1::setNumberOfMouseButtons;
using orvUI_v1::setUserPrefs;
using orvuilib::Preferences;
using testing::ElementsAre;
using testing::IsEmpty;

/// Begins with the preference {"kept": true}, three mouse buttons and a hook that stores.
class PreferencesTest : public testing::Test {
 protected:
  PreferencesTest() {
    preferences.replaceAll({{"kept", true}});
    preferences.setMouseButtons(3);
    orvUI_v1::setAppServicesHook(&hook);
    // They were loaded before.
    preferences.section("kept");
    hook.syncs.clear();
    counting = QObject::connect(&preferences, &Preferences::changed, [this] { ++changes; });
  }
  ~PreferencesTest() override { QObject::disconnect(counting); }

  static QJsonObject parse(const char* json) {
    const QJsonDocument document = QJsonDocument::fromJson(json);
    EXPECT_TRUE(document.isObject()) << json;
    return document.object();
  }
  static std::string text(const QJsonDocument& document) {
    return document.toJson(QJsonDocument::Compact).toStdString();
  }
  std::string held() const { return text(QJsonDocument(preferences.all())); }

  Preferences& preferences = Preferences::instance();
  IdleServicesHook hook;
  QMetaObject::Connection counting;
  int changes = 0;
};

TEST_F(PreferencesTest, AreOneObject) {
  EXPECT_EQ(text(getUserPrefs({})), R"({"kept":true})");
  setUserPrefs(QJsonDocument(parse(R"({"a":{"b":1},"unknown":[1,"x",null]})")));
  EXPECT_EQ(text(getUserPrefs({})), R"({"a":{"b":1},"unknown":[1,"x",null]})");
  EXPECT_EQ(changes, 1);
}

TEST_F(PreferencesTest, ComeWithTheDefaultsThatAreNotThere) {
  const QJsonDocument defaults(parse(R"({"kept":false,"more":2})"));
  EXPECT_EQ(text(getUserPrefs(defaults)), R"({"kept":true,"more":2})");
  EXPECT_EQ(held(), R"({"kept":true})") << "defaults are not kept";
}

TEST_F(PreferencesTest, ADocumentThatIsNoObjectChangesNothing) {
  for (const char* json : {"[1,2]", "[]", "nonsense", "", "4", "null"}) {
    setUserPrefs(QJsonDocument::fromJson(json));
    EXPECT_EQ(held(), R"({"kept":true})") << json;
  }
  EXPECT_EQ(changes, 0);
}

TEST_F(PreferencesTest, TheSameOnceMoreIsNoChange) {
  setUserPrefs(QJsonDocument(parse(R"({"kept":true})")));
  EXPECT_EQ(changes, 0);
}

TEST_F(PreferencesTest, MayBeEmptyAfterThereWereSome) {
  setUserPrefs(QJsonDocument(QJsonObject()));
  EXPECT_EQ(text(getUserPrefs({})), "{}");
}

TEST_F(PreferencesTest, MayBeHuge) {
  QJsonObject all;
  for (int i = 0; i < 50000; ++i) all.insert("key" + QString::number(i), QString(40, 'x'));
  setUserPrefs(QJsonDocument(all));
  EXPECT_EQ(getUserPrefs({}).object(), all);
}

TEST_F(PreferencesTest, AreReplacedWithoutBeingStored) {
  setUserPrefs(QJsonDocument(parse(R"({"a":1})")));
  EXPECT_THAT(hook.syncs, IsEmpty()) << "they come from where they are stored";
}

// Sections.

TEST_F(PreferencesTest, ASectionIsAnObjectUnderAKey) {
  preferences.setSection("grid", parse(R"({"size":4})"));
  EXPECT_EQ(held(), R"({"grid":{"size":4},"kept":true})");
  EXPECT_EQ(preferences.section("grid"), parse(R"({"size":4})"));
  EXPECT_THAT(hook.syncs, ElementsAre(0)) << "it is stored";
  EXPECT_EQ(changes, 1);
}

TEST_F(PreferencesTest, ASectionThatIsNotThereIsEmpty) {
  EXPECT_TRUE(preferences.section("nobody").isEmpty());
  EXPECT_TRUE(preferences.section("kept").isEmpty()) << "something else than an object";
}

TEST_F(PreferencesTest, NothingIsStoredWhenNothingChanged) {
  preferences.setSection("grid", parse(R"({"size":4})"));
  preferences.setSection("grid", parse(R"({"size":4})"));
  preferences.setSection("nobody", {});
  EXPECT_THAT(hook.syncs, ElementsAre(0));
  EXPECT_EQ(changes, 1);
}

TEST_F(PreferencesTest, AnEmptySectionIsTakenAwayAndStored) {
  preferences.setSection("grid", parse(R"({"size":4})"));
  preferences.setSection("grid", {});
  EXPECT_EQ(held(), R"({"kept":true})");
  EXPECT_THAT(hook.syncs, ElementsAre(0, 0));
}

TEST_F(PreferencesTest, WhenTheLastGoesAnEmptyObjectIsStored) {
  preferences.replaceAll(parse(R"({"grid":{"size":4}})"));
  preferences.setSection("grid", {});
  EXPECT_THAT(hook.syncs, ElementsAre(0));
  EXPECT_EQ(text(getUserPrefs({})), "{}");
}

TEST_F(PreferencesTest, WithoutAHookASectionIsKeptAllTheSame) {
  orvUI_v1::setAppServicesHook(nullptr);
  preferences.setSection("grid", parse(R"({"size":4})"));
  EXPECT_EQ(preferences.section("grid"), parse(R"({"size":4})"));
}

// Loading.

/// A program that stored these preferences.
class StoringHook : public IdleServicesHook {
 public:
  explicit StoringHook(QJsonObject preferences) : stored(std::move(preferences)) {}
  void syncUserPrefs(int direction) override {
    IdleServicesHook::syncUserPrefs(direction);
    if (direction == kLoadPrefs) {
      setUserPrefs(QJsonDocument(stored));
    } else {
      stored = getUserPrefs({}).object();
    }
  }

  QJsonObject stored;
};

TEST_F(PreferencesTest, WhatIsStoredIsLoadedWhenASectionIsFirstAskedFor) {
  StoringHook program(parse(R"({"grid":{"size":4}})"));
  orvUI_v1::setAppServicesHook(&program);
  EXPECT_THAT(program.syncs, IsEmpty());
  EXPECT_EQ(preferences.section("grid"), parse(R"({"size":4})"));
  EXPECT_EQ(preferences.section("grid"), parse(R"({"size":4})"));
  EXPECT_THAT(program.syncs, ElementsAre(1)) << "once";
}

TEST_F(PreferencesTest, WhatOtherEditorsStoredIsNotOverwritten) {
  StoringHook program(parse(R"({"grid":{"size":4},"menu":{"open":true}})"));
  orvUI_v1::setAppServicesHook(&program);
  preferences.setSection("grid", parse(R"({"size":5})"));
  EXPECT_THAT(program.syncs, ElementsAre(1, 0));
  EXPECT_EQ(program.stored, parse(R"({"grid":{"size":5},"menu":{"open":true}})"));
}

TEST_F(PreferencesTest, AnotherHookLoadsThemAgain) {
  {
    StoringHook program(parse(R"({"grid":{"size":4}})"));
    orvUI_v1::setAppServicesHook(&program);
    preferences.section("grid");
  }
  EXPECT_EQ(preferences.section("grid"), parse(R"({"size":4})")) << "without a hook they stay";
  StoringHook next(parse(R"({"grid":{"size":6}})"));
  orvUI_v1::setAppServicesHook(&next);
  EXPECT_EQ(preferences.section("grid"), parse(R"({"size":6})"));
}

// The mouse.

TEST_F(PreferencesTest, AMouseHasOneToThreeButtons) {
  for (const int count : {1, 2, 3}) {
    setNumberOfMouseButtons(count);
    EXPECT_EQ(preferences.mouseButtons(), count);
  }
  EXPECT_EQ(changes, 3);
}

TEST_F(PreferencesTest, AnotherNumberOfButtonsChangesNothing) {
  setNumberOfMouseButtons(2);
  for (const int count : {0, 4, -1, 1000}) {
    setNumberOfMouseButtons(count);
    EXPECT_EQ(preferences.mouseButtons(), 2) << count;
  }
  setNumberOfMouseButtons(2);
  EXPECT_EQ(changes, 1);
}

// In a program that just began.

/// 0 when there is nothing yet.
int firstAnswers() {
  const bool empty = getUserPrefs({}).isNull() && !Preferences::instance().everHadAny();
  const QJsonDocument defaults(QJsonObject{{"a", 1}});
  const bool onlyDefaults = getUserPrefs(defaults) == defaults;
  setUserPrefs(QJsonDocument(QJsonObject()));
  const bool still = getUserPrefs({}).isNull();
  return empty && onlyDefaults && still && Preferences::instance().mouseButtons() == 3 ? 0 : 1;
}

TEST(FirstPreferences, AreAnEmptyDocument) {
  testing::FLAGS_gtest_death_test_style = "threadsafe";
  EXPECT_EXIT(std::_Exit(firstAnswers()), testing::ExitedWithCode(0), "");
}

}  // namespace
