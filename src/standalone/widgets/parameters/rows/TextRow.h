#pragma once

#include "platform/orvUI_1_0/OrvUiApi.h"
#include "standalone/widgets/parameters/rows/RowWidget.h"

namespace orvuilib {

class TextField;

/// A line of text.
class ORVUI_EXPORT TextRow final : public RowWidget {
 public:
  TextRow(const ParameterRow& row, QWidget* parent);

 protected:
  void showState(const RowState& state) override;
  void placeFields(const QRect& place) override;

 private:
  TextField* field_;
};

}  // namespace orvuilib
