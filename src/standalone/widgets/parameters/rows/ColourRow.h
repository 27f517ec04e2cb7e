#pragma once

#include "platform/orvUI_1_0/OrvUiApi.h"
#include "standalone/widgets/parameters/fields/ColourButton.h"
#include "standalone/widgets/parameters/rows/ComponentFields.h"
#include "standalone/widgets/parameters/rows/RowWidget.h"

namespace orvuilib {

/// A swatch that opens a picker, and a field for each component.
class ORVUI_EXPORT ColourRow final : public RowWidget {
 public:
  ColourRow(const ParameterRow& row, QWidget* parent);

  /// How many fields stand in a line.
  static int columns(const ParameterRow& row, const QWidget& styled, int width);

 protected:
  void showState(const RowState& state) override;
  void placeFields(const QRect& place) override;

 private:
  void pick();

  ColourButton* swatch_;
  ComponentFields fields_;
};

}  // namespace orvuilib
