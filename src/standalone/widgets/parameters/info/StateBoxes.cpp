#include "standalone/widgets/parameters/info/StateBoxes.h"

#include <QCheckBox>
#include <QVBoxLayout>

#include "standalone/widgets/parameters/FieldStyle.h"
#include "standalone/widgets/parameters/PortEdits.h"
#include "standalone/widgets/parameters/RowStyle.h"

namespace orvuilib {

using orvUI_v1::CommandHook;

namespace {

/// The top node has no states to switch.
bool canSwitch(const orvlib::NodeObject& node) { return node.parent() && isInOpenLevel(node); }

bool isOn(orvlib::NodeObject& node, unsigned int index) {
  return node.getStateFlags()[index].state == 0;
}

}  // namespace

StateBoxes::StateBoxes(QWidget* parent) : QWidget(parent) {
  auto* layout = new QVBoxLayout(this);
  const int gap = style::gap(*this);
  layout->setContentsMargins(gap, 0, 0, 0);
  layout->setSpacing(gap / 2);
}

void StateBoxes::showNode(const orvlib::NodeRef& node) {
  node_ = node;
  for (QCheckBox* box : boxes_) {
    box->hide();
    box->deleteLater();
  }
  boxes_.clear();
  if (!node_) return;
  makeBoxes();
  refresh();
}

void StateBoxes::makeBoxes() {
  const ORV_v1::NodeStateFlags& flags = node_->getStateFlags();
  for (unsigned int i = 0; i < flags.size(); ++i) {
    const ORV_v1::NodeStateFlag flag = flags[i];
    auto* box = new QCheckBox(QString::fromUtf8(flag.name.toChar()), this);
    FieldStyle::applyTo(*box);
    box->setToolTip(QString::fromUtf8(flag.description.toChar()));
    box->setObjectName(QString("flag ") + QChar(flag.key));
    connect(box, &QCheckBox::clicked, this, [this, i](bool on) { set(i, on); });
    layout()->addWidget(box);
    boxes_.push_back(box);
  }
}

/// The box shows what the graph has, not what was asked for.
void StateBoxes::set(unsigned int index, bool on) {
  if (!node_ || !canSwitch(*node_)) return;
  const char key = node_->getStateFlags()[index].key;
  hookOf(node_->core())->setStateFlag(CommandHook::NodeHandle(node_.get()), key, on);
  if (isOn(*node_, index) != on && refused) {
    refused(QString("The graph refused to switch \"%1\"").arg(boxes_[index]->text()));
  }
  refresh();
  if (edited) edited();
}

void StateBoxes::refresh() {
  if (!node_) return;
  const bool isOpen = canSwitch(*node_);
  for (unsigned int i = 0; i < boxes_.size(); ++i) {
    boxes_[i]->setChecked(isOn(*node_, i));
    boxes_[i]->setEnabled(isOpen);
  }
}

}  // namespace orvuilib
