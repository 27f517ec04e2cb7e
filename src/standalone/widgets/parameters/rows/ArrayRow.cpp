#include "standalone/widgets/parameters/rows/ArrayRow.h"

#include <QHeaderView>
#include <QTableView>
#include <QToolButton>
#include <QToolTip>

#include "standalone/widgets/parameters/ParameterPreferences.h"
#include "standalone/widgets/parameters/RowStyle.h"
#include "standalone/widgets/parameters/rows/ArrayModel.h"

namespace orvuilib {

ArrayRow::ArrayRow(const ParameterRow& row, QWidget* parent)
    : RowWidget(row, parent),
      summary_(makeButton({}, "summary", "Show the elements")),
      add_(makeButton("+", "add", "Add an element after the current one")),
      remove_(makeButton(QString(QChar(0x2212)), "remove", "Remove the current element")),
      model_(new ArrayModel(this)) {
  connect(summary_, &QToolButton::clicked, this, [this] {
    if (openAsked) openAsked(!open_);
  });
  connect(add_, &QToolButton::clicked, this, [this] {
    const int current = table_ ? table_->currentIndex().row() : -1;
    model_->insertAfter(current >= 0 ? current : model_->elements() - 1);
  });
  connect(remove_, &QToolButton::clicked, this, [this] {
    const int current = table_ ? table_->currentIndex().row() : -1;
    model_->remove(current >= 0 ? current : model_->elements() - 1);
  });
  model_->asked = [this](const QStringList& texts) { set(texts); };
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
  table_ = new QTableView(editor());
  table_->setModel(model_);
  table_->setTabKeyNavigation(false);
  table_->setWordWrap(false);
  table_->setSelectionMode(QAbstractItemView::SingleSelection);
  table_->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
  table_->horizontalHeader()->setMinimumSectionSize(fontMetrics().height());
  table_->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  table_->verticalHeader()->setDefaultSectionSize(style::lineHeight(*this));
  table_->show();
}

void ArrayRow::setOpen(bool open) {
  open_ = open;
  if (open && !table_) makeTable();
  if (table_) table_->setVisible(open);
  refresh();
}

void ArrayRow::showState(const RowState& state) {
  const orvlib::Value value = row().first().unconnectedValue();
  model_->setEditable(state.editable);
  model_->show(row().type(), value, ParameterPreferences::decimals());
  const int count = model_->elements();
  const QString number = state.isMixed(0) ? QString(QChar(0x2014))
                         : count == 1     ? QString("1 element")
                                          : QString("%1 elements").arg(count);
  summary_->setText(QString(QChar(open_ ? 0x25BE : 0x25B8)) + " " + number);
}

void ArrayRow::placeFields(const QRect& place) {
  const int line = style::lineHeight(*this) - style::gap(*this);
  const int width = std::min(place.width() - 2 * line, summary_->sizeHint().width());
  summary_->setGeometry(place.left(), place.top(), width, line);
  remove_->setGeometry(place.right() - line + 1, place.top(), line, line);
  add_->setGeometry(place.right() - 2 * line + 1, place.top(), line, line);
  if (table_) table_->setGeometry(place.adjusted(0, line + style::gap(*this) / 2, 0, 0));
}

void ArrayRow::refuse(const QString& reason) {
  const QPoint place =
      table_ ? table_->mapToGlobal(table_->rect().bottomLeft()) : mapToGlobal(rect().bottomLeft());
  QToolTip::showText(place, reason, this);
}

}  // namespace orvuilib
