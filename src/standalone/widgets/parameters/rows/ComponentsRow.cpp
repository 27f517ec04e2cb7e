#include "standalone/widgets/parameters/rows/ComponentsRow.h"

#include <cmath>

#include "standalone/widgets/parameters/ParameterPreferences.h"
#include "standalone/widgets/parameters/RowStyle.h"

namespace orvuilib {

ComponentsRow::ComponentsRow(const ParameterRow& row, QWidget* parent)
    : RowWidget(row, parent),
      fields_(row.type(), formatOf(row.first(), ParameterPreferences::decimals()),
              {[this](int index, const QString& text) { setComponent(index, text); },
               [this](int index, const QString& text) { show(toPart(index, {text})); },
               [this] { endLive(); }, [this] { cancelLive(); }},
              editor()) {}

int ComponentsRow::columns(const ParameterRow& row, const QWidget& styled, int width) {
  const int count = static_cast<int>(row.type().componentCount());
  if (row.kind == RowKind::Matrix) return static_cast<int>(std::lround(std::sqrt(count)));
  const int room = width - style::labelWidth(width) - style::lineHeight(styled);
  const int field = styled.fontMetrics().horizontalAdvance("0.000") + 3 * style::gap(styled);
  if (count <= std::max(3, room / field)) return count;
  return count == 4 ? 2 : 3;
}

void ComponentsRow::showState(const RowState& state) {
  fields_.setFormat(formatOf(row().first(), ParameterPreferences::decimals()));
  fields_.show(state);
}

void ComponentsRow::placeFields(const QRect& place) {
  const int gap = style::gap(*this);
  fields_.place(place, columns(row(), *this, width()), gap / 2);
}

}  // namespace orvuilib
