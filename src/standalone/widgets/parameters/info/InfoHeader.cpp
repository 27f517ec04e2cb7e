#include "standalone/widgets/parameters/info/InfoHeader.h"

#include <QLabel>
#include <QToolButton>
#include <QVBoxLayout>

#include "standalone/graph/model/CompoundObject.h"
#include "standalone/widgets/parameters/ParameterRow.h"
#include "standalone/widgets/parameters/RowStyle.h"

namespace orvuilib {

using orvlib::NodeObject;

InfoHeader::InfoHeader(QWidget* parent)
    : QWidget(parent),
      previous_(makeArrow(QChar(0x2039), "The node before", -1)),
      place_(makeText("place")),
      next_(makeArrow(QChar(0x203A), "The next node", 1)),
      name_(makeText("name")),
      type_(makeText("type")),
      typeName_(makeText("typeName")),
      path_(makeText("path")),
      origin_(makeText("origin")),
      description_(makeText("description")) {
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(style::gap(*this) / 2);
  makeName(*layout);
  QPalette faint = palette();
  faint.setColor(QPalette::WindowText, style::faintText(*this));
  for (QLabel* label : {typeName_, origin_, path_, place_}) label->setPalette(faint);
  for (QLabel* label : {type_, typeName_, path_, origin_, description_}) layout->addWidget(label);
}

void InfoHeader::makeName(QVBoxLayout& layout) {
  QFont large = font();
  constexpr double kLarger = 1.35;
  // A font has its size in points or in pixels.
  if (large.pixelSize() > 0) {
    large.setPixelSize(qRound(large.pixelSize() * kLarger));
  } else {
    large.setPointSizeF(large.pointSizeF() * kLarger);
  }
  large.setBold(true);
  name_->setFont(large);
  place_->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);
  place_->setWordWrap(false);
  auto* line = new QHBoxLayout;
  line->addWidget(name_, 1);
  for (QWidget* part : {static_cast<QWidget*>(previous_), static_cast<QWidget*>(place_),
                        static_cast<QWidget*>(next_)}) {
    line->addWidget(part);
  }
  layout.addLayout(line);
}

QLabel* InfoHeader::makeText(const char* name) {
  auto* label = new QLabel(this);
  label->setObjectName(name);
  label->setTextFormat(Qt::PlainText);
  label->setWordWrap(true);
  label->setTextInteractionFlags(Qt::TextSelectableByMouse);
  label->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  return label;
}

QToolButton* InfoHeader::makeArrow(QChar sign, const char* tip, int by) {
  auto* button = new QToolButton(this);
  button->setText(sign);
  button->setToolTip(tip);
  button->setAutoRaise(true);
  connect(button, &QToolButton::clicked, this, [this, by] {
    if (turnAsked) turnAsked(by);
  });
  return button;
}

void InfoHeader::show(const NodeObject& node, int place, int count) {
  name_->setText(toText(node.name()));
  path_->setText(toText(node.fullPath()));
  showType(node);
  showOrigin(node);
  const auto* known = node.description();
  description_->setText(known ? toText(known->description) : QString());
  description_->setVisible(!description_->text().isEmpty());
  place_->setText(QString("%1 of %2").arg(place + 1).arg(count));
  for (QWidget* part : {static_cast<QWidget*>(place_), static_cast<QWidget*>(previous_),
                        static_cast<QWidget*>(next_)}) {
    part->setVisible(count > 1);
  }
  previous_->setEnabled(place > 0);
  next_->setEnabled(place + 1 < count);
}

/// Kinds that every graph has, such as compounds, have one name only.
void InfoHeader::showType(const NodeObject& node) {
  type_->setText(niceTypeName(node));
  typeName_->setText(toText(node.typeName()));
  typeName_->setVisible(type_->text().compare(typeName_->text(), Qt::CaseInsensitive) != 0);
}

void InfoHeader::showOrigin(const NodeObject& node) {
  const auto* compound = node.compound();
  const QString origin = compound ? toText(compound->origin()) : QString();
  const bool isReference = compound && compound->isReference();
  origin_->setText((isReference ? "A reference to " : "A copy of ") + origin);
  origin_->setVisible(!origin.isEmpty());
}

}  // namespace orvuilib
