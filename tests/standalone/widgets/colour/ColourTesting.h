#pragma once

#include <gtest/gtest.h>

#include <map>
#include <ostream>

#include "platform/orvUI_1_0/ColorManagementHandler.h"
#include "standalone/widgets/preferences/Preferences.h"

namespace orvUI_v1 {

/// For the messages of a failing test.
inline void PrintTo(const HIGColor& colour, std::ostream* out) {
  *out << '(' << colour.r << ", " << colour.g << ", " << colour.b << ", " << colour.a << ')';
}

}  // namespace orvUI_v1

/// Nothing of a test is left for the next.
class ColourTest : public testing::Test {
 protected:
  ~ColourTest() override {
    orvUI_v1::setEyeDropperHandler(nullptr);
    orvuilib::Preferences::instance().replaceAll({});
  }
};

/// A colour management whose mixing space has half the numbers, and whose view shows twice as much.
/// Each space but "Plain" remembers its view.
class HalvingHandler : public orvUI_v1::ColorManagementHandler {
 public:
  HalvingHandler() { registerCMHandler(this); }

  bool isColorManagementAvailable() override { return true; }
  QList<QString> getMixingSpaceNames() override { return {"Half", "Other", "Plain", "Refused"}; }
  QString mixingSpace() override { return space_; }
  bool setMixingSpace(const QString& name) override {
    if (name == "Refused") return false;
    space_ = name;
    return ColorManagementHandler::setMixingSpace(name);
  }
  QList<QString> getViewSpaceNames() override {
    return space_ == "Plain" ? QList<QString>() : QList<QString>{"Bright", "Dim"};
  }
  QString viewSpace() override { return space_ == "Plain" ? QString() : views_[space_]; }
  bool setViewSpace(const QString& name) override {
    if (!getViewSpaceNames().contains(name)) return false;
    views_[space_] = name;
    return ColorManagementHandler::setViewSpace(name);
  }

  orvUI_v1::HIGColor applyMixingTransform(const orvUI_v1::HIGColor& colour,
                                          Direction direction) const override {
    if (!enabled()) return colour;
    return scaled(colour, direction == kForward ? 0.5f : 2.0f);
  }
  orvUI_v1::HIGColor applyViewTransform(const orvUI_v1::HIGColor& colour,
                                        Direction direction) override {
    if (!enabled()) return colour;
    return scaled(colour, direction == kForward ? 2.0f : 0.5f);
  }

 private:
  static orvUI_v1::HIGColor scaled(const orvUI_v1::HIGColor& colour, float by) {
    return {colour.r * by, colour.g * by, colour.b * by, colour.a};
  }

  QString space_ = "Half";
  std::map<QString, QString> views_{{"Half", "Bright"}, {"Other", "Bright"}};
};
