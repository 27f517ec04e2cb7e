#pragma once

#include "platform/orvUI_1_0/OrvUiApi.h"
#include "standalone/widgets/parameters/rows/ComponentFields.h"
#include "standalone/widgets/parameters/rows/RowWidget.h"

namespace orvuilib {

/// A field for each component of a vector, in a line where there is room; of a matrix, in a square.
class ORVUI_EXPORT ComponentsRow final : public RowWidget {
 public:
  ComponentsRow(const ParameterRow& row, QWidget* parent);

  /// How many fields stand in a line, in a row of that width.
  static int columns(const ParameterRow& row, const QWidget& styled, int width);

 protected:
  void showState(const RowState& state) override;
  void placeFields(const QRect& place) override;
  bool isWide() const override { return row().kind == RowKind::Matrix; }

 private:
  ComponentFields fields_;
};

}  // namespace orvuilib
