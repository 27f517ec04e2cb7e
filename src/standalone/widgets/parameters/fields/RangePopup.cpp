#include "standalone/widgets/parameters/fields/RangePopup.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

#include "standalone/widgets/parameters/RowStyle.h"
#include "standalone/widgets/parameters/fields/NumberField.h"

namespace orvuilib {

RangePopup::RangePopup(NumberRange range, const NumberFormat& format, QWidget* parent)
    : QFrame(parent, Qt::Popup) {
  setAttribute(Qt::WA_DeleteOnClose);
  setFrameShape(QFrame::StyledPanel);
  const int gap = style::gap(*this);
  auto* layout = new QHBoxLayout(this);
  layout->setContentsMargins(2 * gap, 2 * gap, 2 * gap, 2 * gap);
  layout->setSpacing(gap);
  least_ = new NumberField(format, this);
  most_ = new NumberField(format, this);
  least_->setObjectName("least");
  most_->setObjectName("most");
  least_->showValue(format.print(range.first));
  most_->showValue(format.print(range.second));
  for (NumberField* field : {least_, most_}) {
    field->setFixedWidth(fontMetrics().horizontalAdvance("-00000.000") + 3 * gap);
    field->entered = [this](const QString&) { take(); };
  }
  auto* automatic = new QPushButton("Automatic", this);
  connect(automatic, &QPushButton::clicked, this, [this] {
    if (chosen) chosen(std::nullopt);
    close();
  });
  layout->addWidget(new QLabel("Slider from", this));
  layout->addWidget(least_);
  layout->addWidget(new QLabel("to", this));
  layout->addWidget(most_);
  layout->addWidget(automatic);
  least_->setFocus();
}

/// A range that is none waits for its other end.
void RangePopup::take() {
  const double least = least_->value().toDouble();
  const double most = most_->value().toDouble();
  if (least < most && chosen) chosen(NumberRange(least, most));
}

}  // namespace orvuilib
