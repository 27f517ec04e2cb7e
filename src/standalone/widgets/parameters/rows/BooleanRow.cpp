#include "standalone/widgets/parameters/rows/BooleanRow.h"

#include "standalone/widgets/parameters/FieldStyle.h"
#include "standalone/widgets/parameters/rows/CheckState.h"

namespace orvuilib {

BooleanRow::BooleanRow(const ParameterRow& row, QWidget* parent)
    : RowWidget(row, parent), box_(new QCheckBox(editor())) {
  FieldStyle::applyTo(*box_);
  connect(box_, &QCheckBox::clicked, this, [this] { set({takeClick(*box_) ? "true" : "false"}); });
}

void BooleanRow::showState(const RowState& state) {
  showCheck(*box_, state.texts.value(0) == "true", state.isMixed(0));
}

void BooleanRow::placeFields(const QRect& place) {
  const QSize size = box_->sizeHint();
  box_->setGeometry(place.left(), place.top(), size.width(), place.height());
}

}  // namespace orvuilib
