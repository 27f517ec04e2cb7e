#pragma once

#include "platform/orvUI_1_0/OrvUiApi.h"
#include "standalone/widgets/parameters/rows/RowWidget.h"

namespace orvuilib {

class NumberField;
class RangeSlider;

/// A number field and a slider over the soft range. The field takes numbers beyond it.
class ORVUI_EXPORT NumberRow final : public RowWidget {
 public:
  NumberRow(const ParameterRow& row, QWidget* parent);

 protected:
  void showState(const RowState& state) override;
  void placeFields(const QRect& place) override;

 private:
  void connectSlider();
  void askForRange(QPoint place);

  NumberField* field_;
  RangeSlider* slider_;
};

}  // namespace orvuilib
