#include "standalone/widgets/parameters/rows/ColourRow.h"

#include <utility>

#include "standalone/widgets/colour/ColourDialog.h"
#include "standalone/widgets/parameters/ParameterPreferences.h"
#include "standalone/widgets/parameters/RowStyle.h"

namespace orvuilib {

using orvUI_v1::HIGColor;

ColourRow::ColourRow(const ParameterRow& row, QWidget* parent)
    : RowWidget(row, parent),
      swatch_(new ColourButton(editor())),
      fields_(row.type(), formatOf(row.first(), ParameterPreferences::decimals()),
              {[this](int index, const QString& text) { setComponent(index, text); },
               [this](int index, const QString& text) { edits().showComponent(index, text); },
               [this] { endLive(); }, [this] { cancelLive(); }},
              editor()) {
  connect(swatch_, &QAbstractButton::clicked, this, [this] { openPicker(); });
}

/// The swatch takes the place of one field of each line.
int ColourRow::columns(const ParameterRow& row, const QWidget& styled, int width) {
  const int count = static_cast<int>(row.type().componentCount());
  const int room = width - style::labelWidth(width) - 2 * style::lineHeight(styled);
  const int field = styled.fontMetrics().horizontalAdvance("0.000") + 3 * style::gap(styled);
  return count * field <= room || count == 3 ? count : 2;
}

HIGColor ColourRow::colour() const {
  HIGColor colour{0, 0, 0, 1};
  float* const components[] = {&colour.r, &colour.g, &colour.b, &colour.a};
  for (qsizetype i = 0; i < state().texts.size() && i < 4; ++i) {
    *components[i] = state().texts[i].toFloat();
  }
  return colour;
}

QStringList ColourRow::texts(const HIGColor& colour) const {
  const float components[] = {colour.r, colour.g, colour.b, colour.a};
  QStringList texts;
  const NumberFormat format = formatOf(row().first(), ParameterPreferences::decimals());
  for (std::size_t i = 0; i < row().type().componentCount(); ++i) {
    texts.append(format.print(components[i]));
  }
  return texts;
}

void ColourRow::showState(const RowState& state) {
  fields_.setFormat(formatOf(row().first(), ParameterPreferences::decimals()));
  fields_.show(state);
  if (state.anyMixed()) {
    swatch_->showMixed();
  } else {
    swatch_->showColour(colour());
  }
  const bool keepsPicker = state.editable && !state.isConnected(row());
  if (picker_ && !keepsPicker) std::exchange(picker_, nullptr)->reject();
}

void ColourRow::placeFields(const QRect& place) {
  const int gap = style::gap(*this);
  const int side = style::lineHeight(*this) - gap;
  swatch_->setGeometry(place.left(), place.top(), side, place.height());
  const QRect rest = place.adjusted(side + gap, 0, 0, 0);
  fields_.place(rest, columns(row(), *this, width()), gap / 2);
}

/// While it is open nothing else is edited: what is picked is one step.
void ColourRow::openPicker() {
  if (picker_) return;
  picker_ = new ColourDialog(colour(), this);
  picker_->setAttribute(Qt::WA_DeleteOnClose);
  picker_->setObjectName("picker");
  picker_->setModal(true);
  connect(picker_, &ColourDialog::changing, this,
          [this](const HIGColor& chosen) { edits().show(texts(chosen)); });
  connect(picker_, &ColourDialog::chosen, this, [this] { endLive(); });
  connect(picker_, &ColourDialog::cancelled, this, [this] {
    cancelLive();
    refresh();
  });
  picker_->show();
}

}  // namespace orvuilib
