#include "standalone/graph/model/WatchPointObject.h"

#include <set>

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
    EXPECT_TRUE(edits_.run(SetUpWatchPoint{watched_, {enabled, changesOnly, limit, {}}}));
  }

  void show(FloatForm::Style style, std::uint8_t digits) {
    WatchPointSetup setup = watched_->setup();
    setup.form = {style, digits};
    EXPECT_TRUE(edits_.run(SetUpWatchPoint{watched_, setup}));
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
            (Strings{"record", "limit", "format", "digits"}));
}

TEST_F(WatchPoint, ListsTheValuesOfAChoice) {
  EXPECT_EQ(texts([&](auto& values) { return watched_->getParameterValues("record", values); }),
            (Strings{"all", "changes"}));
  EXPECT_EQ(texts([&](auto& values) { return watched_->getParameterValues("format", values); }),
            (Strings{"shortest", "fixed", "scientific"}));
}

TEST_F(WatchPoint, ListsNoValuesOfANumber) {
  for (const char* name : {"limit", "digits"}) {
    EXPECT_EQ(texts([&](auto& values) { return watched_->getParameterValues(name, values); }),
              Strings{});
  }
}

TEST_F(WatchPoint, DescribesEachParameterAndEachChoice) {
  std::set<std::string> all;
  for (const WatchPointParameter& one : watchPointParameters()) {
    all.insert(text([&](auto& text) { return watched_->getParameterDescription(one.name, text); }));
    for (const WatchPointChoice& choice : one.choices) {
      all.insert(text([&](auto& text) {
        return watched_->getParameterValueDescription(one.name, choice.value, text);
      }));
    }
  }
  EXPECT_EQ(all.size(), 4u + 2u + 3u);
  for (const std::string& description : all) EXPECT_EQ(description.back(), '.') << description;
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

TEST_F(WatchPoint, ShowsFloatsInItsFormat) {
  record({0.1F, -2e8F});
  show(FloatForm::Style::Fixed, 3);
  EXPECT_EQ(recorded(), (Strings{"0.100", "-200000000.000"}));
  show(FloatForm::Style::Scientific, 1);
  EXPECT_EQ(recorded(), (Strings{"1.0e-01", "-2.0e+08"}));
  ASSERT_TRUE(edits_.revert());
  EXPECT_EQ(recorded(), (Strings{"0.1", "-2e+08"}));
}

TEST_F(WatchPoint, TheFormatIsThatOfFloatsInValues) {
  show(FloatForm::Style::Fixed, 2);
  watched_->record(1, Floats{1, 0.125F});
  watched_->record(2, Integers{7});
  watched_->record(3, Texts{"0.1"});
  EXPECT_EQ(recorded(), (Strings{"{1.00,0.12}", "7", "0.1"}));
  EXPECT_EQ(recorded("evaluation"), (Strings{"1", "2", "3"}));
}

TEST_F(WatchPoint, RecordsAChangeThatTheFormatHides) {
  setUp(true, true, 100);
  show(FloatForm::Style::Fixed, 0);
  record({1, 1.25F, 1.25F});
  EXPECT_EQ(recorded(), (Strings{"1", "1"}));
}

TEST_F(WatchPoint, AMillionRecordsTakeNoMoreRoomThanItsLimit) {
  constexpr std::uint32_t kLimit = 100000;
  setUp(true, false, kLimit);
  for (std::uint64_t i = 1; i <= 10 * kLimit; ++i) {
    watched_->record(i, Floats{static_cast<float>(i)});
    ASSERT_LE(watched_->records().capacity(), kLimit) << i;
  }
  ASSERT_EQ(watched_->records().size(), kLimit);
  EXPECT_EQ(watched_->records()[0].evaluation, 9 * kLimit + 1);
  EXPECT_EQ(recorded("evaluation").back(), "1000000");
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
