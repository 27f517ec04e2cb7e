#include "platform/OpenVesk/KCommandResult.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <climits>

#include "standalone/host/engine/HostAccess.h"

namespace {

using Texts = std::vector<std::string>;
using ::testing::ElementsAre;

/// A result of that value, and what reading it into variables of each kind does.
class ResultOf {
 public:
  explicit ResultOf(vesk::ResultValue value) { HostAccess::value(result) = std::move(value); }

  KStatusCode readInt() { return result.getResult(integer).statusCode(); }
  KStatusCode readText() { return result.getResult(text).statusCode(); }
  KStatusCode readTexts() { return result.getResult(texts).statusCode(); }

  KCommandResult result;
  int integer = 77;
  KString text{"former"};
  KStringArray texts = HostAccess::stringArray({"former"});
};

/// Reads into the kinds that do not fit, which must refuse and change nothing.
void expectNeitherTextNorTexts(ResultOf& value) {
  EXPECT_EQ(value.readText(), StatusFailure);
  EXPECT_STREQ(value.text.asUTF8(), "former");
  EXPECT_EQ(value.readTexts(), StatusFailure);
  EXPECT_THAT(HostAccess::texts(value.texts), ElementsAre("former"));
}

void expectNoInteger(ResultOf& value) {
  EXPECT_EQ(value.readInt(), StatusFailure);
  EXPECT_EQ(value.integer, 77);
}

TEST(KCommandResult, IsNothingByDefault) {
  KStatus status = StatusFailure;
  const KCommandResult result(&status);
  EXPECT_TRUE(status);
  status = StatusFailure;
  EXPECT_EQ(result.resultType(&status), KCommandResult::kNone);
  EXPECT_TRUE(status);
}

TEST(KCommandResult, NothingIsReadFromNothing) {
  ResultOf value(std::monostate{});
  expectNoInteger(value);
  expectNeitherTextNorTexts(value);
}

TEST(KCommandResult, ABoolReadsAsAnInt) {
  ResultOf value(true);
  EXPECT_EQ(value.result.resultType(), KCommandResult::kBool);
  EXPECT_EQ(value.readInt(), StatusSuccess);
  EXPECT_EQ(value.integer, 1);
  expectNeitherTextNorTexts(value);
}

TEST(KCommandResult, AnIntReadsAsAnIntAlone) {
  ResultOf value(-5);
  EXPECT_EQ(value.result.resultType(), KCommandResult::kInt);
  EXPECT_EQ(value.readInt(), StatusSuccess);
  EXPECT_EQ(value.integer, -5);
  expectNeitherTextNorTexts(value);
}

TEST(KCommandResult, AnUnsignedThatFitsReadsAsAnInt) {
  ResultOf value(static_cast<unsigned int>(INT_MAX));
  EXPECT_EQ(value.result.resultType(), KCommandResult::kUnsigned);
  EXPECT_EQ(value.readInt(), StatusSuccess);
  EXPECT_EQ(value.integer, INT_MAX);
  expectNeitherTextNorTexts(value);
}

TEST(KCommandResult, AnUnsignedThatDoesNotFitIsNoInt) {
  ResultOf value(static_cast<unsigned int>(INT_MAX) + 1);
  expectNoInteger(value);
}

TEST(KCommandResult, ADoubleReadsAsNothing) {
  ResultOf value(2.0);
  EXPECT_EQ(value.result.resultType(), KCommandResult::kDouble);
  expectNoInteger(value);
  expectNeitherTextNorTexts(value);
}

TEST(KCommandResult, ATextReadsAsATextAlone) {
  ResultOf value(std::string("5"));
  EXPECT_EQ(value.result.resultType(), KCommandResult::kString);
  expectNoInteger(value);
  EXPECT_EQ(value.readTexts(), StatusFailure);
  EXPECT_THAT(HostAccess::texts(value.texts), ElementsAre("former"));
  EXPECT_EQ(value.readText(), StatusSuccess);
  EXPECT_STREQ(value.text.asUTF8(), "5");
}

TEST(KCommandResult, AnArrayReadsAsAnArrayAlone) {
  ResultOf value(Texts{"a", ""});
  EXPECT_EQ(value.result.resultType(), KCommandResult::kStringArray);
  expectNoInteger(value);
  EXPECT_EQ(value.readText(), StatusFailure);
  EXPECT_STREQ(value.text.asUTF8(), "former");
  EXPECT_EQ(value.readTexts(), StatusSuccess);
  EXPECT_THAT(HostAccess::texts(value.texts), ElementsAre("a", ""));
}

TEST(KCommandResult, AnEmptyTextIsAResult) {
  ResultOf value{std::string()};
  EXPECT_EQ(value.result.resultType(), KCommandResult::kString);
  EXPECT_EQ(value.readText(), StatusSuccess);
  EXPECT_EQ(value.text.length(), 0u);
}

}  // namespace
