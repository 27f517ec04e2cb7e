#pragma once

#include "platform/orvUI_1_0/OrvUiApi.h"
#include "standalone/widgets/parameters/Choices.h"
#include "standalone/widgets/parameters/rows/RowWidget.h"

namespace orvuilib {

class ChoiceBox;

/// A list of the values that the port's metadata offers. A value that is none of them is shown as
/// it is.
class ORVUI_EXPORT ChoiceRow final : public RowWidget {
 public:
  ChoiceRow(const ParameterRow& row, QWidget* parent);

 protected:
  void showState(const RowState& state) override;
  void placeFields(const QRect& place) override;

 private:
  ChoiceBox* box_;
};

}  // namespace orvuilib
