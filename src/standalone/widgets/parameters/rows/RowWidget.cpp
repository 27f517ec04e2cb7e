#include "standalone/widgets/parameters/rows/RowWidget.h"

#include <QPainter>
#include <QToolButton>
#include <utility>

#include "standalone/widgets/colour/ColourDialog.h"
#include "standalone/widgets/colour/ColourPicker.h"
#include "standalone/widgets/parameters/RowStyle.h"
#include "standalone/widgets/parameters/fields/SourceLink.h"

namespace orvuilib {

RowWidget::RowWidget(const ParameterRow& row, QWidget* parent)
    : QWidget(parent),
      edits_(row),
      editor_(new QWidget(this)),
      link_(new SourceLink(this)),
      reset_(new QToolButton(this)) {
  reset_->setText(QString(QChar(0x21BA)));
  reset_->setToolTip("Reset to the default");
  reset_->setObjectName("reset");
  reset_->setAutoRaise(true);
  reset_->setFocusPolicy(Qt::TabFocus);
  connect(reset_, &QToolButton::clicked, this, [this] { tell(edits_.reset()); });
  setToolTip(describe());
}

RowWidget::~RowWidget() = default;

void RowWidget::setRow(const ParameterRow& row) {
  edits_.setRow(row);
  setToolTip(describe());
  refresh();
}

void RowWidget::refresh() {
  edits_.readAgain();
  const RowState& now = state();
  const bool connected = now.isConnected(row());
  editor_->setVisible(!connected);
  editor_->setEnabled(now.editable || isForReaders());
  link_->setVisible(connected);
  if (connected) link_->showSources(now.sources);
  reset_->setVisible(now.own && now.editable && !connected);
  const bool keepsPicker = now.editable && !connected;
  if (picker_ && !keepsPicker) std::exchange(picker_, nullptr)->reject();
  showState(now);
  layOut();
  update();
}

QString RowWidget::describe() const {
  const auto* known = row().first().description();
  QString text = row().label + "  (" + toText(row().type().name) + ")";
  if (known && !known->description.empty()) text += "\n" + toText(known->description);
  return text;
}

void RowWidget::refuse(const QString& reason) {
  if (refused) refused(reason);
}

void RowWidget::tell(bool done) {
  if (!done) refuse(QString("The graph refused the value of %1").arg(row().label));
  if (edited) edited();
}

void RowWidget::change(const RowEdits::Change& change) { tell(edits_.change(change)); }

void RowWidget::endLive() { tell(edits_.end()); }

void RowWidget::cancelLive() {
  edits_.cancel();
  tell(true);
}

/// While it is open nothing else is edited: what is picked is one step.
void RowWidget::openPicker(const orvUI_v1::HIGColor& colour,
                           std::function<RowEdits::Change(const orvUI_v1::HIGColor&)> shown) {
  if (picker_) return;
  picker_ = new ColourDialog(colour, this);
  picker_->setAttribute(Qt::WA_DeleteOnClose);
  picker_->setObjectName("picker");
  picker_->setModal(true);
  picker_->picker().setAlphaShown(row().type().componentCount() > 3);
  connect(picker_, &ColourDialog::changing, this,
          [this, shown = std::move(shown)](const auto& chosen) { show(shown(chosen)); });
  connect(picker_, &ColourDialog::chosen, this, [this] { endLive(); });
  connect(picker_, &ColourDialog::cancelled, this, [this] {
    cancelLive();
    refresh();
  });
  picker_->show();
}

void RowWidget::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  layOut();
}

/// The last column is the reset button's, whether or not it is there: fields keep their places. A
/// row that is connected has none.
void RowWidget::layOut() {
  const int gap = style::gap(*this);
  const int line = style::lineHeight(*this);
  const int button = line - gap;
  const int left = style::labelWidth(width());
  const int right = width() - button - gap;
  reset_->setGeometry(right + gap / 2, gap / 2, button, button);
  link_->setGeometry(left, gap / 2, width() - gap / 2 - left, line - gap);
  const QRect beside(left, gap / 2, right - left, height() - gap);
  const QRect below(3 * gap, line, right - 3 * gap, height() - line - gap / 2);
  editor_->setGeometry(isWide() ? below : beside);
  placeFields(editor_->rect());
}

void RowWidget::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const int gap = style::gap(*this);
  const int line = style::lineHeight(*this);
  const double dot = gap * 0.75;
  painter.setPen(Qt::NoPen);
  painter.setBrush(style::ofType(row().type()));
  painter.drawEllipse(QPointF(gap * 2.5, line / 2.0), dot, dot);
  const QRect place(gap * 4 + gap / 2, 0, style::labelWidth(width()) - 5 * gap, line - 1);
  const std::size_t some = state().connected;
  QString label = row().label;
  if (some > 0 && some < row().ports.size()) label += QString("  (%1 connected)").arg(some);
  QFont bold = font();
  bold.setBold(state().own);
  painter.setFont(bold);
  painter.setPen(palette().color(QPalette::WindowText));
  const QRect room = isWide() ? place.adjusted(0, 0, width() / 3, 0) : place;
  painter.drawText(room, Qt::AlignVCenter | Qt::AlignLeft,
                   QFontMetrics(bold).elidedText(label, Qt::ElideRight, room.width()));
}

}  // namespace orvuilib
