#pragma once

#include <QPointer>

#include "platform/orvUI_1_0/OrvUiApi.h"
#include "standalone/widgets/parameters/fields/ColourButton.h"
#include "standalone/widgets/parameters/rows/ComponentFields.h"
#include "standalone/widgets/parameters/rows/RowWidget.h"

namespace orvuilib {

class ColourDialog;

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
  void openPicker();
  orvUI_v1::HIGColor colour() const;
  QStringList texts(const orvUI_v1::HIGColor& colour) const;

  ColourButton* swatch_;
  ComponentFields fields_;
  QPointer<ColourDialog> picker_;
};

}  // namespace orvuilib
