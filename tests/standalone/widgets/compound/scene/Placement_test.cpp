#include "standalone/widgets/compound/scene/Placement.h"

#include <gtest/gtest.h>

using namespace orvuilib::placement;

namespace {

TEST(Placement, APointIsReadBackAsItIsWritten) {
  for (const QPointF& point : {QPointF(0, 0), QPointF(-12.5, 1e5), QPointF(0.1, -0.1)}) {
    EXPECT_EQ(parsePoint(toText(point).toStdString()), point);
  }
}

TEST(Placement, NoPointIsReadFromAnyOtherText) {
  for (const char* text :
       {"", "1", "1,", ",1", "1,2,3", "1 ,2", "nan,0", "inf,0", "1e9,0", "a,b"}) {
    EXPECT_EQ(parsePoint(text), std::nullopt) << text;
  }
}

TEST(Placement, ZeroHasNoSign) { EXPECT_EQ(toText({-0.01, -0.0}), "0,0"); }

}  // namespace
