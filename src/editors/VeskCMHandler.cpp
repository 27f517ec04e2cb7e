#include <QString>
#include <bit>

#include "platform/OpenVeskRender/KColorManagementUtilities.h"
#include "platform/OpenVeskRender/KColorMixingSpaceHelper.h"
#include "platform/OpenVeskRender/KColorPickerUtilities.h"
#include "platform/orvUI_1_0/ColorManagementHandler.h"

using orvUI_v1::ColorManagementHandler;
using orvUI_v1::HIGColor;

namespace {

/// The host takes the bytes for narrow text, which UTF-8 is on any usual machine.
KString toKString(const QString& text) { return KString(text.toUtf8().constData()); }

QString fromKString(const KString& text) { return QString::fromUtf8(text.asUTF8()); }

QList<QString> toList(const KStringArray& texts) {
  QList<QString> list;
  for (const KString& text : texts) list.append(fromKString(text));
  return list;
}

// The two have one layout.
KColor toKColor(const HIGColor& color) { return std::bit_cast<KColor>(color); }

HIGColor fromKColor(const KColor& color) { return std::bit_cast<HIGColor>(color); }

/// The color is overwritten also when the user cancelled.
bool pickFromScreen(HIGColor* color) {
  KStatus status;
  *color = fromKColor(KColorPickerUtilities::grabColor(&status));
  return bool(status);
}

/// Gives the editors the host's colour management. It chooses no space: it begins with what the
/// host has, and only the editors change that.
class VeskCMHandler final : public ColorManagementHandler {
 public:
  VeskCMHandler() {
    registerCMHandler(this);
    // The base alone: the host has them already.
    ColorManagementHandler::setMixingSpace(fromKString(helper.mixingSpace()));
    ColorManagementHandler::setViewSpace(fromKString(helper.view()));
    orvUI_v1::setEyeDropperHandler(pickFromScreen);
  }

  ~VeskCMHandler() override { orvUI_v1::setEyeDropperHandler(nullptr); }

  bool isColorManagementAvailable() override {
    return KColorManagementUtilities::isColorManagementEnabled();
  }

  QList<QString> getMixingSpaceNames() override {
    return toList(helper.getMixingSpaceNames(nullptr));
  }

  QString mixingSpace() override { return fromKString(helper.mixingSpace()); }

  bool setMixingSpace(const QString& name) override {
    if (!helper.setMixingSpace(toKString(name))) return false;
    ColorManagementHandler::setMixingSpace(name);
    return true;
  }

  QList<QString> getViewSpaceNames() override {
    if (!helper.mixingSpaceHasViews()) return {};
    return toList(helper.getViewNames(nullptr));
  }

  QString viewSpace() override { return fromKString(helper.view()); }

  bool setViewSpace(const QString& name) override {
    if (!helper.setView(toKString(name))) return false;
    ColorManagementHandler::setViewSpace(name);
    return true;
  }

  HIGColor applyMixingTransform(const HIGColor& color, Direction direction) const override {
    using Helper = KColorMixingSpaceHelper;
    if (!hostIsInForce()) return ColorManagementHandler::applyMixingTransform(color, direction);
    const auto hostDirection = static_cast<Helper::Direction>(direction != 0);
    return fromKColor(helper.applyMixingTransform(toKColor(color), hostDirection, nullptr));
  }

  float mixingToSlider(float value, float minimum, float maximum) const override {
    return hostIsInForce() ? helper.mixingToSlider(value, minimum, maximum)
                           : ColorManagementHandler::mixingToSlider(value, minimum, maximum);
  }

  float sliderToMixing(float position, float minimum, float maximum) const override {
    return hostIsInForce() ? helper.sliderToMixing(position, minimum, maximum)
                           : ColorManagementHandler::sliderToMixing(position, minimum, maximum);
  }

  HIGColor applyViewTransform(const HIGColor& color, Direction direction) override {
    using Picker = KColorPickerUtilities;
    if (!hostIsInForce()) return color;
    const auto hostDirection = static_cast<Picker::Direction>(direction != 0);
    return fromKColor(Picker::applyViewTransform(toKColor(color), hostDirection));
  }

 private:
  /// Asked anew for each colour: the user may switch at any time.
  bool hostIsInForce() const { return enabled() && helper.mixingSpace().length() > 0; }

  KColorMixingSpaceHelper helper;
};

/// There before the module's entry points run, until the module is unloaded.
VeskCMHandler theHandler;

}  // namespace
