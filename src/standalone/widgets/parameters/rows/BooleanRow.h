#pragma once

#include "platform/orvUI_1_0/OrvUiApi.h"
#include "standalone/widgets/parameters/rows/RowWidget.h"

class QCheckBox;

namespace orvuilib {

/// A check box.
class ORVUI_EXPORT BooleanRow final : public RowWidget {
 public:
  BooleanRow(const ParameterRow& row, QWidget* parent);

 protected:
  void showState(const RowState& state) override;
  void placeFields(const QRect& place) override;

 private:
  QCheckBox* box_;
};

}  // namespace orvuilib
