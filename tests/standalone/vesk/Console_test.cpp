#include "standalone/vesk/Console.h"

#include <gtest/gtest.h>

#include <sstream>

namespace vesk {
namespace {

class ConsoleTest : public ::testing::Test {
 protected:
  std::ostringstream out_;
  std::ostringstream err_;
  Console console_{out_, err_};
};

TEST_F(ConsoleTest, ShowsPrintsOnTheOutput) {
  console_.message({MessageKind::Print, "a text"});
  EXPECT_EQ(out_.str(), "a text\n");
  EXPECT_EQ(err_.str(), "");
}

TEST_F(ConsoleTest, ShowsErrorsAndWarningsBesideIt) {
  console_.message({MessageKind::Error, "wrong"});
  console_.message({MessageKind::Warning, "careful"});
  EXPECT_EQ(err_.str(), "Error: wrong\nWarning: careful\n");
  EXPECT_EQ(out_.str(), "");
}

TEST_F(ConsoleTest, ShowsNoEchoesAndNoLines) {
  console_.lineBegins("ls");
  console_.message({MessageKind::Echo, "ls"});
  EXPECT_EQ(out_.str() + err_.str(), "");
}

TEST_F(ConsoleTest, ShowsAResultAsText) {
  console_.lineEnded(std::string("a \"text\""), StatusSuccess);
  console_.lineEnded(3, StatusSuccess);
  console_.lineEnded(true, StatusSuccess);
  console_.lineEnded(std::vector<std::string>{"a", "b"}, StatusSuccess);
  EXPECT_EQ(out_.str(), "a \"text\"\n3\ntrue\na\nb\n");
}

TEST_F(ConsoleTest, ShowsAnEmptyTextAndNoEmptyList) {
  console_.lineEnded(std::string(), StatusSuccess);
  console_.lineEnded(std::vector<std::string>{}, StatusSuccess);
  console_.lineEnded({}, StatusSuccess);
  EXPECT_EQ(out_.str(), "\n");
}

}  // namespace
}  // namespace vesk
