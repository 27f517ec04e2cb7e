#include "standalone/graph/model/WatchPointObject.h"

#include "standalone/graph/api/GraphAccess.h"
#include "tests/standalone/graph/GraphFixture.h"

namespace orvlib {
namespace {

using Strings = std::vector<std::string>;

class WatchPoint : public GraphFixture {
 protected:
  /// What a question that answers with texts gives; one "no answer" when it gives false.
  template <class Ask>
  static Strings texts(Ask ask) {
    ORV_v1::StringArray answer;
    answer.add("as it was");
    if (ask(answer)) return ORV_v1::GraphAccess::textsOf(answer);
    EXPECT_EQ(ORV_v1::GraphAccess::textsOf(answer), Strings{"as it was"});
    return {"no answer"};
  }

  template <class Ask>
  static std::string text(Ask ask) {
    ORV_v1::String answer = ORV_v1::GraphAccess::makeString("as it was");
    if (ask(answer)) return answer.toChar();
    EXPECT_STREQ(answer.toChar(), "as it was");
    return "no answer";
  }

  Strings recorded(const char* name = "value") {
    return texts([&](auto& values) { return watched_->getRecordedValues(name, values); });
  }

  std::string parameter(const char* name) {
    return text([&](auto& value) { return watched_->getParameterValue(name, value); });
  }

  void setUp(bool enabled, bool changesOnly, std::uint32_t limit) {
    EXPECT_TRUE(edits_.run(SetUpWatchPoint{watched_, {enabled, changesOnly, limit}}));
  }

  void record(std::initializer_list<float> values) {
    for (const float value : values) watched_->record(++evaluation_, Floats{value});
  }

  WatchPointRef watched_{new WatchPointObject};
  std::uint64_t evaluation_ = 0;
};

TEST_F(WatchPoint, IsEnabledAtFirst) {
  EXPECT_TRUE(watched_->isEnabled());
  setUp(false, false, 100);
  EXPECT_FALSE(watched_->isEnabled());
}

TEST_F(WatchPoint, NamesItsParameters) {
  EXPECT_EQ(texts([&](auto& names) { return watched_->getParameterNames(names); }),
            (Strings{"record", "limit"}));
}

TEST_F(WatchPoint, ListsTheValuesOfAChoice) {
  EXPECT_EQ(texts([&](auto& values) { return watched_->getParameterValues("record", values); }),
            (Strings{"all", "changes"}));
}

TEST_F(WatchPoint, ListsNoValuesOfANumber) {
  EXPECT_EQ(texts([&](auto& values) { return watched_->getParameterValues("limit", values); }),
            Strings{});
}

TEST_F(WatchPoint, DescribesEachParameterAndEachChoice) {
  for (const char* name : {"record", "limit"}) {
    EXPECT_EQ(
        text([&](auto& answer) { return watched_->getParameterDescription(name, answer); }).back(),
        '.');
  }
  for (const char* value : {"all", "changes"}) {
    EXPECT_EQ(text([&](auto& answer) {
                return watched_->getParameterValueDescription("record", value, answer);
              }).back(),
              '.');
  }
}

TEST_F(WatchPoint, HasNoAnswerForAnUnknownParameter) {
  for (const char* name : {"", "other", static_cast<const char*>(nullptr)}) {
    EXPECT_EQ(parameter(name), "no answer");
    EXPECT_EQ(texts([&](auto& values) { return watched_->getParameterValues(name, values); }),
              Strings{"no answer"});
    EXPECT_EQ(text([&](auto& answer) { return watched_->getParameterDescription(name, answer); }),
              "no answer");
    EXPECT_EQ(text([&](auto& answer) {
                return watched_->getParameterValueDescription(name, "all", answer);
              }),
              "no answer");
  }
}

TEST_F(WatchPoint, HasNoDescriptionOfAValueThatAParameterDoesNotList) {
  for (const char* value : {"", "some", static_cast<const char*>(nullptr)}) {
    EXPECT_EQ(text([&](auto& answer) {
                return watched_->getParameterValueDescription("record", value, answer);
              }),
              "no answer");
  }
  EXPECT_EQ(text([&](auto& answer) {
              return watched_->getParameterValueDescription("limit", "100", answer);
            }),
            "no answer");
}

TEST_F(WatchPoint, GivesTheValuesOfItsParameters) {
  EXPECT_EQ(parameter("record"), "all");
  EXPECT_EQ(parameter("limit"), "100");
  setUp(true, true, 5);
  EXPECT_EQ(parameter("record"), "changes");
  EXPECT_EQ(parameter("limit"), "5");
}

TEST_F(WatchPoint, ASetupTakesOnlyWhatAParameterCanBe) {
  WatchPointSetup setup;
  EXPECT_TRUE(setup.set("record", "changes"));
  EXPECT_TRUE(setup.set("limit", "1000000"));
  EXPECT_EQ(setup, (WatchPointSetup{true, true, 1000000}));
  for (const char* limit : {"0", "-1", "1000001", "4294967297", "", "1 ", "1.5", "ten"}) {
    EXPECT_FALSE(setup.set("limit", limit)) << limit;
  }
  for (const char* choice : {"", "All", "none"}) EXPECT_FALSE(setup.set("record", choice));
  EXPECT_FALSE(setup.set("other", "all"));
  EXPECT_EQ(setup, (WatchPointSetup{true, true, 1000000}));
}

TEST_F(WatchPoint, NamesWhatItRecords) {
  EXPECT_EQ(texts([&](auto& names) { return watched_->getRecordNames(names); }),
            (Strings{"value", "evaluation"}));
}

TEST_F(WatchPoint, GivesRecordsTheOldestFirst) {
  record({1, 2.5, 2.5});
  EXPECT_EQ(recorded(), (Strings{"1", "2.5", "2.5"}));
  EXPECT_EQ(recorded("evaluation"), (Strings{"1", "2", "3"}));
}

TEST_F(WatchPoint, GivesAValueOfSeveralComponentsAsAList) {
  watched_->record(1, Floats{1, 2, 3});
  watched_->record(2, Texts{"a,b"});
  EXPECT_EQ(recorded(), (Strings{"{1,2,3}", "a\\,b"}));
}

TEST_F(WatchPoint, HasNoRecordsOfAnUnknownName) {
  for (const char* name : {"", "other", static_cast<const char*>(nullptr)}) {
    EXPECT_EQ(recorded(name), Strings{"no answer"});
  }
}

TEST_F(WatchPoint, HasEmptyRecordsBeforeTheFirstEvaluation) { EXPECT_EQ(recorded(), Strings{}); }

TEST_F(WatchPoint, LeavesOutWhatIsTheSameWhenSetUpSo) {
  setUp(true, true, 100);
  record({1, 1, 2, 1});
  EXPECT_EQ(recorded(), (Strings{"1", "2", "1"}));
  EXPECT_EQ(recorded("evaluation"), (Strings{"1", "3", "4"}));
}

TEST_F(WatchPoint, RecordsNothingWhileItIsDisabled) {
  setUp(false, false, 100);
  record({1});
  EXPECT_EQ(recorded(), Strings{});
}

TEST_F(WatchPoint, KeepsTheLatestUpToItsLimit) {
  setUp(true, false, 2);
  record({1, 2, 3});
  EXPECT_EQ(recorded(), (Strings{"2", "3"}));
}

TEST_F(WatchPoint, ASmallerLimitShowsFewerAtOnce) {
  record({1, 2, 3});
  setUp(true, false, 1);
  EXPECT_EQ(recorded(), Strings{"3"});
}

TEST_F(WatchPoint, UndoOfASmallerLimitShowsAllAgain) {
  record({1, 2, 3});
  setUp(true, false, 1);
  ASSERT_TRUE(edits_.revert());
  EXPECT_EQ(recorded(), (Strings{"1", "2", "3"}));
}

TEST_F(WatchPoint, IsClearedOnlyOnAPort) {
  record({1});
  EXPECT_FALSE(watched_->clearRecordedValues());
  EXPECT_EQ(recorded(), Strings{"1"});
  PortObject* port = add(top(), "core::math::add", "sum")->port("a");
  ASSERT_TRUE(edits_.run(SetWatchPoint{PortRef(port), watched_}));
  EXPECT_TRUE(watched_->clearRecordedValues());
  EXPECT_EQ(recorded(), Strings{});
}

TEST_F(WatchPoint, IsOnThePortThatItWasSetOn) {
  PortObject* port = add(top(), "core::math::add", "sum")->port("a");
  Transaction edits;
  ASSERT_TRUE(edits.run(SetWatchPoint{PortRef(port), watched_}));
  EXPECT_EQ(watched_->port(), port);
  EXPECT_EQ(port->watchPoint(), watched_.get());
  ASSERT_TRUE(edits.revert());
  EXPECT_EQ(watched_->port(), nullptr);
  EXPECT_EQ(port->watchPoint(), nullptr);
}

}  // namespace
}  // namespace orvlib
