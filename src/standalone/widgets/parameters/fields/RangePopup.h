#pragma once

#include <QFrame>
#include <functional>

#include "platform/orvUI_1_0/OrvUiApi.h"
#include "standalone/widgets/parameters/NumberFormat.h"
#include "standalone/widgets/parameters/ParameterPreferences.h"

namespace orvuilib {

class NumberField;

/// Asks for the range of a slider. It goes when the user clicks elsewhere.
class ORVUI_EXPORT RangePopup final : public QFrame {
 public:
  RangePopup(NumberRange range, const NumberFormat& format, QWidget* parent);

  /// Called with each range that the user enters; nothing for the range that the slider would have
  /// by itself.
  std::function<void(std::optional<NumberRange>)> chosen;

 private:
  void take();

  NumberField* least_;
  NumberField* most_;
};

}  // namespace orvuilib
