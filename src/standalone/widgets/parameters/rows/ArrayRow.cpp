#include "standalone/widgets/parameters/rows/ArrayRow.h"

#include <QToolButton>
#include <algorithm>

#include "standalone/widgets/parameters/ParameterPreferences.h"
#include "standalone/widgets/parameters/RowStyle.h"
#include "standalone/widgets/parameters/rows/ArrayModel.h"
#include "standalone/widgets/parameters/rows/ElementTable.h"
#include "standalone/widgets/parameters/rows/arrayChanges.h"
#include "standalone/widgets/parameters/rows/colourTexts.h"

namespace orvuilib {

ArrayRow::ArrayRow(const ParameterRow& row, QWidget* parent)
    : RowWidget(row, parent),
      summary_(makeButton({}, "summary", "Show the elements")),
      up_(makeButton(QString(QChar(0x2191)), "up", "Move the current element up (Alt+Up)")),
      down_(makeButton(QString(QChar(0x2193)), "down", "Move the current element down (Alt+Down)")),
      add_(makeButton("+", "add", "Add an element after the current one (Insert)")),
      remove_(makeButton(QString(QChar(0x2212)), "remove", "Remove the current element (Delete)")),
      model_(new ArrayModel(this)) {
  connect(summary_, &QToolButton::clicked, this, [this] {
    if (openAsked) openAsked(!open_);
  });
  connect(up_, &QToolButton::clicked, this, [this] { moveOne(-1); });
  connect(down_, &QToolButton::clicked, this, [this] { moveOne(1); });
  connect(add_, &QToolButton::clicked, this, [this] { addOne(); });
  connect(remove_, &QToolButton::clicked, this, [this] { removeOne(); });
  model_->entered = [this](int component, const QString& text) { setComponent(component, text); };
  model_->refused = [this](const QString& reason) { refuse(reason); };
}

QToolButton* ArrayRow::makeButton(const QString& text, const char* name, const char* tip) {
  auto* button = new QToolButton(editor());
  button->setText(text);
  button->setToolTip(tip);
  button->setObjectName(name);
  button->setAutoRaise(true);
  button->setFocusPolicy(Qt::TabFocus);
  return button;
}

void ArrayRow::makeTable() {
  table_ = new ElementTable(*model_, editor());
  table_->addAsked = [this] { addOne(); };
  table_->removeAsked = [this] { removeOne(); };
  table_->moveAsked = [this](int by) { moveOne(by); };
  table_->colourAsked = [this](int element) { pick(element); };
}

void ArrayRow::setOpen(bool open) {
  open_ = open;
  if (open && !table_) makeTable();
  if (table_) table_->setVisible(open);
  refresh();
}

int ArrayRow::current() const {
  return open_ && table_->currentIndex().isValid() ? table_->currentIndex().row() : kLastElement;
}

void ArrayRow::changeTo(const RowEdits::Change& what, int element) {
  if (!state().editable) return;
  const int column = open_ ? std::max(0, table_->currentIndex().column()) : 0;
  change(what);
  refresh();
  if (!open_ || model_->rowCount() == 0) return;
  const int line = std::clamp(element, 0, model_->rowCount() - 1);
  table_->setCurrentIndex(model_->index(line, column));
}

void ArrayRow::addOne() {
  const int at = current();
  changeTo(addElement(at, row().type()), at == kLastElement ? model_->rowCount() : at + 1);
}

void ArrayRow::removeOne() {
  const int at = current();
  changeTo(removeElement(at, row().type()), at == kLastElement ? model_->rowCount() - 2 : at);
}

void ArrayRow::moveOne(int by) {
  const int from = current();
  const int to = from + by;
  if (from == kLastElement || to < 0 || to >= model_->rowCount()) return;
  changeTo(moveElement(from, to, row().type()), to);
}

void ArrayRow::pick(int element) {
  if (!state().editable) return;
  const auto format = formatOf(row().first(), ParameterPreferences::decimals());
  const auto width = row().type().componentCount();
  const int first = element * static_cast<int>(width);
  openPicker(colourOf(model_->elementTexts(element)), [=](const orvUI_v1::HIGColor& chosen) {
    return toPart(first, textsOf(chosen, width, format));
  });
}

/// As much as there is room for.
QString ArrayRow::summary(int room) const {
  const QString arrow = QString(QChar(open_ ? 0x25BE : 0x25B8)) + " ";
  const auto count = static_cast<int>(state().elements);
  const QString number = state().isMixed(0) ? QString(QChar(0x2014)) : QString::number(count);
  const QString whole = arrow + number + (count == 1 ? " element" : " elements");
  const bool fits = fontMetrics().horizontalAdvance(whole) + 3 * style::gap(*this) <= room;
  return fits && !state().isMixed(0) ? whole : arrow + number;
}

/// The current element stays, also when others come and go.
void ArrayRow::showElements() {
  const QModelIndex former = table_->currentIndex();
  const int line = former.row();
  const int column = former.column();
  model_->show(row(), ParameterPreferences::decimals());
  if (line < 0 || table_->currentIndex().isValid() || model_->rowCount() == 0) return;
  table_->setCurrentIndex(model_->index(std::min(line, model_->rowCount() - 1), column));
}

/// Only what is seen is read.
void ArrayRow::showState(const RowState& state) {
  model_->setEditable(state.editable);
  if (open_) showElements();
  for (QToolButton* button : {up_, down_, add_, remove_}) button->setEnabled(state.editable);
  up_->setVisible(open_);
  down_->setVisible(open_);
}

void ArrayRow::placeFields(const QRect& place) {
  const int line = style::lineHeight(*this) - style::gap(*this);
  const int room = place.width() - (open_ ? 4 : 2) * line;
  summary_->setText(summary(room));
  summary_->setGeometry(place.left(), place.top(), std::min(room, summary_->sizeHint().width()),
                        line);
  int right = place.right() + 1;
  for (QToolButton* button : {remove_, add_, down_, up_}) {
    right -= line;
    button->setGeometry(right, place.top(), line, line);
  }
  if (table_) table_->setGeometry(place.adjusted(0, line + style::gap(*this) / 2, 0, 0));
}

}  // namespace orvuilib
