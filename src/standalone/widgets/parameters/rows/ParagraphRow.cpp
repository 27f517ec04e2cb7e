#include "standalone/widgets/parameters/rows/ParagraphRow.h"

#include "standalone/widgets/parameters/fields/ParagraphField.h"

namespace orvuilib {

ParagraphRow::ParagraphRow(const ParameterRow& row, QWidget* parent)
    : RowWidget(row, parent), field_(new ParagraphField(editor())) {
  field_->entered = [this](const QString& text) { set({text}); };
}

void ParagraphRow::showState(const RowState& state) {
  if (state.isMixed(0)) {
    field_->showMixed();
  } else {
    field_->showValue(state.texts.value(0));
  }
}

void ParagraphRow::placeFields(const QRect& place) { field_->setGeometry(place); }

}  // namespace orvuilib
