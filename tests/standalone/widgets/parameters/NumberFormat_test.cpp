#include "standalone/widgets/parameters/NumberFormat.h"

#include <gtest/gtest.h>

namespace orvuilib {
namespace {

TEST(NumberFormat, ReadsNumbersAsTheGraphHasThem) {
  const NumberFormat format;
  QString reason;
  EXPECT_EQ(format.read(" 0.50 ", reason), "0.5");
  EXPECT_EQ(format.read("1e3", reason), "1000");
  EXPECT_EQ(format.read("inf", reason), "inf");
  EXPECT_FALSE(format.read("1,5", reason));
  EXPECT_FALSE(format.read("", reason));
  EXPECT_FALSE(format.read("1 2", reason));
  EXPECT_FALSE(reason.isEmpty());
}

TEST(NumberFormat, KeepsWithinItsBounds) {
  NumberFormat format;
  format.least = -1;
  format.most = 2;
  QString reason;
  EXPECT_TRUE(format.read("2", reason));
  EXPECT_FALSE(format.read("2.01", reason));
  EXPECT_EQ(reason, "2.01 is more than 2");
  EXPECT_FALSE(format.read("-1.5", reason));
  EXPECT_EQ(reason, "-1.5 is less than -1");
  EXPECT_EQ(format.print(7), "2");
  EXPECT_EQ(format.print(-7), "-1");
}

TEST(NumberFormat, ShortensForTheEye) {
  const NumberFormat format;
  EXPECT_EQ(format.shortened("0.123456"), "0.123");
  EXPECT_EQ(format.shortened("2.5"), "2.5");
  EXPECT_EQ(format.shortened("3"), "3");
  EXPECT_EQ(format.shortened("1e-20"), "1e-20");
  EXPECT_EQ(format.shortened("-0.0001234567"), "-0.0001235");
  EXPECT_EQ(format.shortened("nan"), "nan");
}

TEST(NumberFormat, PrintsIntegersWhole) {
  NumberFormat format;
  format.kind = orvlib::ScalarKind::Integer;
  EXPECT_EQ(format.print(2.6), "3");
  EXPECT_EQ(format.print(1e20), "2147483647");
  QString reason;
  EXPECT_FALSE(format.read("1.5", reason));
}

}  // namespace
}  // namespace orvuilib
