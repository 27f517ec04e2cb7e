#include <gtest/gtest.h>

#include "platform/OpenVeskUI/KQtUtil.h"
#include "standalone/host/engine/OptionVariables.h"
#include "standalone/workspace/Workspace.h"
#include "tests/support/HostTest.h"

namespace {

/// The size 100 at a scale that is stored as `value`.
int scaled100(vesk::OptionVariables::Value value) {
  hosttest::Host host;
  host.session().optionVariables().set("interfaceScale", std::move(value));
  return KQtUtil::dpiScale(100);
}

TEST(InterfaceScale, Is100WithoutASession) {
  ASSERT_EQ(vesk::HostSession::current(), nullptr);
  EXPECT_EQ(KQtUtil::dpiScale(100), 100);
}

TEST(InterfaceScale, Is100UnlessTheUserChoseOne) {
  const hosttest::Host host;
  EXPECT_EQ(KQtUtil::dpiScale(100), 100);
  EXPECT_EQ(vesk::interfaceScale(), 100);
}

TEST(InterfaceScale, IsTheOneThatTheUserChose) {
  for (const int scale : {100, 125, 150, 175, 200}) EXPECT_EQ(scaled100(scale), scale);
}

TEST(InterfaceScale, Is100ForAScaleThatIsNotOffered) {
  for (const int scale : {0, -100, 99, 110, 201, 300}) EXPECT_EQ(scaled100(scale), 100) << scale;
}

TEST(InterfaceScale, Is100ForAValueThatIsNoWholeNumber) {
  EXPECT_EQ(scaled100(150.0), 100);
  EXPECT_EQ(scaled100(std::string("150")), 100);
}

TEST(InterfaceScale, RoundsSizesToTheNearestPixelAwayFromZero) {
  hosttest::Host host;
  host.session().optionVariables().set("interfaceScale", 125);
  EXPECT_EQ(KQtUtil::dpiScale(1), 1);
  EXPECT_EQ(KQtUtil::dpiScale(2), 3);
  EXPECT_EQ(KQtUtil::dpiScale(3), 4);
  EXPECT_EQ(KQtUtil::dpiScale(-2), -3);
  EXPECT_EQ(KQtUtil::dpiScale(-1), -1);
  EXPECT_EQ(KQtUtil::dpiScale(0), 0);
}

TEST(InterfaceScale, LargeSizesAreScaledExactly) {
  hosttest::Host host;
  host.session().optionVariables().set("interfaceScale", 200);
  EXPECT_EQ(KQtUtil::dpiScale(1'000'000'000), 2'000'000'000);
}

}  // namespace
