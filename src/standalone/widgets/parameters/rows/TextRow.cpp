#include "standalone/widgets/parameters/rows/TextRow.h"

#include "standalone/widgets/parameters/fields/TextField.h"

namespace orvuilib {

TextRow::TextRow(const ParameterRow& row, QWidget* parent)
    : RowWidget(row, parent), field_(new TextField(editor())) {
  field_->entered = [this](const QString& text) { set({text}); };
}

void TextRow::showState(const RowState& state) {
  if (state.isMixed(0)) {
    field_->showMixed();
  } else {
    field_->showValue(state.texts.value(0));
  }
}

void TextRow::placeFields(const QRect& place) { field_->setGeometry(place); }

}  // namespace orvuilib
