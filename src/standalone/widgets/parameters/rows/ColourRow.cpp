#include "standalone/widgets/parameters/rows/ColourRow.h"

#include "standalone/widgets/parameters/ParameterPreferences.h"
#include "standalone/widgets/parameters/RowStyle.h"
#include "standalone/widgets/parameters/rows/colourTexts.h"

namespace orvuilib {

using orvUI_v1::HIGColor;

ColourRow::ColourRow(const ParameterRow& row, QWidget* parent)
    : RowWidget(row, parent),
      swatch_(new ColourButton(editor())),
      fields_(row.type(), formatOf(row.first(), ParameterPreferences::decimals()),
              {[this](int index, const QString& text) { setComponent(index, text); },
               [this](int index, const QString& text) { show(toPart(index, {text})); },
               [this] { endLive(); }, [this] { cancelLive(); }},
              editor()) {
  connect(swatch_, &QAbstractButton::clicked, this, [this] { pick(); });
}

/// The swatch takes the place of one field of each line.
int ColourRow::columns(const ParameterRow& row, const QWidget& styled, int width) {
  const int count = static_cast<int>(row.type().componentCount());
  const int room = width - style::labelWidth(width) - 2 * style::lineHeight(styled);
  const int field = styled.fontMetrics().horizontalAdvance("0.000") + 3 * style::gap(styled);
  return count * field <= room || count == 3 ? count : 2;
}

void ColourRow::showState(const RowState& state) {
  fields_.setFormat(formatOf(row().first(), ParameterPreferences::decimals()));
  fields_.show(state);
  if (state.anyMixed()) {
    swatch_->showMixed();
  } else {
    swatch_->showColour(colourOf(state.texts));
  }
}

void ColourRow::placeFields(const QRect& place) {
  const int gap = style::gap(*this);
  const int side = style::lineHeight(*this) - gap;
  swatch_->setGeometry(place.left(), place.top(), side, place.height());
  const QRect rest = place.adjusted(side + gap, 0, 0, 0);
  fields_.place(rest, columns(row(), *this, width()), gap / 2);
}

void ColourRow::pick() {
  const auto format = formatOf(row().first(), ParameterPreferences::decimals());
  const auto count = row().type().componentCount();
  openPicker(colourOf(state().texts), [format, count](const HIGColor& chosen) {
    return toValue(textsOf(chosen, count, format));
  });
}

}  // namespace orvuilib
