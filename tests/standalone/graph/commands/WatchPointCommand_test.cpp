#include "platform/ORV_1_0/WatchPointCommand.h"

#include "tests/standalone/graph/commands/CommandFixture.h"

namespace orvlib {
namespace {

class WatchPointCommandTest : public CommandFixture {
 protected:
  WatchPointCommandTest() {
    add(top(), "core::math::add", "a");
    handle_ = handle("/a.result");
  }

  Handle handle_;
  ORV_v1::WatchPointCommand command_;
};

TEST_F(WatchPointCommandTest, CreatesAndSetsUpInOneCommand) {
  const std::string before = text();
  ASSERT_TRUE(command_.createWatchPoint(handle_));
  ASSERT_TRUE(command_.enableWatchPoint(handle_, false));
  ASSERT_TRUE(command_.setWatchPointParameter(handle_, "limit", "5"));
  EXPECT_EQ(port("/a.result")->watchPoint(), nullptr);
  ASSERT_TRUE(command_.redo());
  EXPECT_EQ(port("/a.result")->watchPoint()->setup().limit, 5u);
  EXPECT_FALSE(port("/a.result")->watchPoint()->isEnabled());
  expectReversible(command_, before);
}

TEST_F(WatchPointCommandTest, RecordsWhatFitsWhatIsRecorded) {
  EXPECT_FALSE(command_.removeWatchPoint(handle_));
  EXPECT_FALSE(command_.enableWatchPoint(handle_, true));
  ASSERT_TRUE(command_.createWatchPoint(handle_));
  EXPECT_FALSE(command_.createWatchPoint(handle_));
  ASSERT_TRUE(command_.removeWatchPoint(handle_));
  EXPECT_FALSE(command_.setWatchPointParameter(handle_, "limit", "5"));
  EXPECT_FALSE(command_.createWatchPoint(Handle()));
}

TEST_F(WatchPointCommandTest, RefusesUnknownParametersAndValues) {
  ASSERT_TRUE(command_.createWatchPoint(handle_));
  EXPECT_FALSE(command_.setWatchPointParameter(handle_, "none", "1"));
  EXPECT_FALSE(command_.setWatchPointParameter(handle_, "limit", "0"));
  EXPECT_FALSE(command_.setWatchPointParameter(handle_, "record", "some"));
  EXPECT_FALSE(command_.setWatchPointParameter(handle_, "format", "long"));
}

TEST_F(WatchPointCommandTest, SetsEachParameterThatThereIs) {
  ASSERT_TRUE(command_.createWatchPoint(handle_));
  ASSERT_TRUE(command_.redo());
  const std::string before = text();
  ORV_v1::WatchPointCommand setting;
  for (const auto& [name, value] :
       {std::pair{"record", "changes"}, {"limit", "9"}, {"format", "fixed"}, {"digits", "2"}}) {
    ASSERT_TRUE(setting.setWatchPointParameter(handle_, name, value)) << name;
  }
  ASSERT_TRUE(setting.redo());
  EXPECT_EQ(port("/a.result")->watchPoint()->setup(),
            (WatchPointSetup{true, true, 9, {FloatForm::Style::Fixed, 2}}));
  expectReversible(setting, before);
}

TEST_F(WatchPointCommandTest, UndoGivesBackTheVeryWatchPoint) {
  command_.createWatchPoint(handle_);
  ASSERT_TRUE(command_.redo());
  const WatchPointRef first(port("/a.result")->watchPoint());
  ORV_v1::WatchPointCommand gone;
  gone.removeWatchPoint(handle_);
  ASSERT_TRUE(gone.redo());
  EXPECT_EQ(first->port(), nullptr);
  gone.undo();
  EXPECT_EQ(port("/a.result")->watchPoint(), first.get());
}

}  // namespace
}  // namespace orvlib
