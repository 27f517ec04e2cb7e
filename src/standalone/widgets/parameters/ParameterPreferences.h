#pragma once

#include <QJsonObject>
#include <QString>
#include <optional>
#include <utility>

#include "platform/orvUI_1_0/OrvUiApi.h"

namespace orvuilib {

using NumberRange = std::pair<double, double>;

/// What the user prefers in parameter editors: the section "parameterEditor" of the preferences. A
/// value that does not fit counts as absent. Every change is stored at once.
class ORVUI_EXPORT ParameterPreferences {
 public:
  static constexpr const char* kSection = "parameterEditor";
  static constexpr int kDecimals = 3;

  /// How many decimals numbers are shown with, 0 to 9.
  static int decimals();
  static void setDecimals(int decimals);

  /// The range that the user gave to the slider of a row, by the row's key.
  static std::optional<NumberRange> sliderRange(const QString& row);

  /// Nothing takes the range back.
  static void setSliderRange(const QString& row, std::optional<NumberRange> range);

  /// Groups are open until the user closes them.
  static bool isOpen(const QString& group);
  static void setOpen(const QString& group, bool open);
};

}  // namespace orvuilib
