#include "standalone/widgets/parameters/rows/NumberRow.h"

#include <QMenu>

#include "standalone/widgets/parameters/RowStyle.h"
#include "standalone/widgets/parameters/SoftRange.h"
#include "standalone/widgets/parameters/fields/NumberField.h"
#include "standalone/widgets/parameters/fields/RangePopup.h"
#include "standalone/widgets/parameters/fields/RangeSlider.h"

namespace orvuilib {

NumberRow::NumberRow(const ParameterRow& row, QWidget* parent)
    : RowWidget(row, parent),
      field_(new NumberField(formatOf(row.first(), ParameterPreferences::decimals()), editor())),
      slider_(new RangeSlider(editor())) {
  field_->entered = [this](const QString& text) { set({text}); };
  field_->stepped = [this](const QString& text) { show(toValue({text})); };
  field_->stepsEnded = [this] { endLive(); };
  field_->stepsCancelled = [this] { cancelLive(); };
  connectSlider();
}

void NumberRow::connectSlider() {
  slider_->moved = [this](double number) {
    const QString text = field_->format().print(number);
    field_->showValue(text);
    show(toValue({text}));
  };
  slider_->ended = [this] { endLive(); };
  slider_->cancelled = [this] { cancelLive(); };
  slider_->menuAsked = [this](QPoint place) { askForRange(place); };
}

/// While the slider moves its range stays as it is.
void NumberRow::showState(const RowState& state) {
  field_->setFormat(formatOf(row().first(), ParameterPreferences::decimals()));
  const double number = state.texts.value(0).toDouble();
  if (!slider_->isDragged()) {
    const NumberRange range = softRange(row(), number);
    slider_->setRange(range.first, range.second);
    const bool isInteger = row().type().scalar == orvlib::ScalarKind::Integer;
    slider_->setStep(std::max(isInteger ? 1.0 : 0.0, (range.second - range.first) / 100));
  }
  if (state.isMixed(0)) {
    field_->showMixed();
    slider_->showMixed();
    return;
  }
  field_->showValue(state.texts.value(0));
  if (!slider_->isDragged()) slider_->showNumber(number);
}

void NumberRow::placeFields(const QRect& place) {
  const int gap = style::gap(*this);
  const int wanted = fontMetrics().horizontalAdvance("-0000.000") + 3 * gap;
  const int width = std::min(wanted, place.width() / 2);
  const int height = slider_->sizeHint().height();
  field_->setGeometry(place.left(), place.top(), width, place.height());
  slider_->setGeometry(place.left() + width + gap, place.center().y() - height / 2,
                       place.width() - width - gap, height);
}

void NumberRow::askForRange(QPoint place) {
  auto* popup = new RangePopup({slider_->least(), slider_->most()}, field_->format(), this);
  const QString key = row().key;
  popup->chosen = [this, key](std::optional<NumberRange> range) {
    ParameterPreferences::setSliderRange(key, range);
    refresh();
  };
  popup->move(place);
  popup->show();
}

}  // namespace orvuilib
