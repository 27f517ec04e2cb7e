#include "standalone/widgets/parameters/rows/ChoiceRow.h"

#include "standalone/widgets/parameters/fields/ChoiceBox.h"

namespace orvuilib {

ChoiceRow::ChoiceRow(const ParameterRow& row, QWidget* parent)
    : RowWidget(row, parent), box_(new ChoiceBox(editor())) {
  box_->chosen = [this](const QString& value) { set({value}); };
}

void ChoiceRow::showState(const RowState& state) {
  box_->setChoices(readChoices(row().first()));
  if (state.isMixed(0)) {
    box_->showMixed();
  } else {
    box_->showValue(state.texts.value(0));
  }
}

void ChoiceRow::placeFields(const QRect& place) { box_->setGeometry(place); }

}  // namespace orvuilib
