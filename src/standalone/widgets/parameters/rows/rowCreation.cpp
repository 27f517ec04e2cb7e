// Which widget edits which kind of row, and how high it is.

#include "standalone/widgets/parameters/RowStyle.h"
#include "standalone/widgets/parameters/rows/ArrayRow.h"
#include "standalone/widgets/parameters/rows/BooleanRow.h"
#include "standalone/widgets/parameters/rows/ChoiceRow.h"
#include "standalone/widgets/parameters/rows/ColourRow.h"
#include "standalone/widgets/parameters/rows/ComponentsRow.h"
#include "standalone/widgets/parameters/rows/NumberRow.h"
#include "standalone/widgets/parameters/rows/ParagraphRow.h"
#include "standalone/widgets/parameters/rows/TextRow.h"

namespace orvuilib {
namespace {

RowWidget* make(const ParameterRow& row, QWidget* parent) {
  switch (row.kind) {
    case RowKind::Boolean:
      return new BooleanRow(row, parent);
    case RowKind::Number:
      return new NumberRow(row, parent);
    case RowKind::Components:
    case RowKind::Matrix:
      return new ComponentsRow(row, parent);
    case RowKind::Colour:
      return new ColourRow(row, parent);
    case RowKind::Text:
      return new TextRow(row, parent);
    case RowKind::Paragraph:
      return new ParagraphRow(row, parent);
    case RowKind::Choice:
      return new ChoiceRow(row, parent);
    case RowKind::Array:
      return new ArrayRow(row, parent);
  }
  return nullptr;
}

int linesOf(const ParameterRow& row, const QWidget& styled, int width, bool open) {
  const int count = static_cast<int>(row.type().componentCount());
  const auto lines = [count](int columns) { return (count + columns - 1) / columns; };
  if (row.connected) return 1;
  switch (row.kind) {
    case RowKind::Components:
      return lines(ComponentsRow::columns(row, styled, width));
    case RowKind::Colour:
      return lines(ColourRow::columns(row, styled, width));
    case RowKind::Matrix:
      return 1 + lines(ComponentsRow::columns(row, styled, width));
    case RowKind::Paragraph:
      return textLines(row.first());
    case RowKind::Array:
      return open ? ArrayRow::kOpenLines : 1;
    default:
      return 1;
  }
}

}  // namespace

RowWidget* RowWidget::create(const ParameterRow& row, QWidget* parent) {
  RowWidget* widget = make(row, parent);
  widget->refresh();
  return widget;
}

int RowWidget::heightOf(const ParameterRow& row, const QWidget& styled, int width, bool open) {
  return linesOf(row, styled, width, open) * style::lineHeight(styled);
}

}  // namespace orvuilib
