#pragma once

#include "platform/orvUI_1_0/OrvUiApi.h"
#include "standalone/widgets/parameters/rows/RowWidget.h"

namespace orvuilib {

class ParagraphField;

/// A text of several lines.
class ORVUI_EXPORT ParagraphRow final : public RowWidget {
 public:
  ParagraphRow(const ParameterRow& row, QWidget* parent);

 protected:
  void showState(const RowState& state) override;
  void placeFields(const QRect& place) override;

 private:
  ParagraphField* field_;
};

}  // namespace orvuilib
