#include "standalone/widgets/parameters/info/InfoPanel.h"

#include <QCheckBox>
#include <QHeaderView>
#include <QLabel>
#include <QScrollBar>
#include <QTableView>
#include <QToolButton>
#include <QVBoxLayout>
#include <algorithm>

#include "standalone/graph/model/CompoundObject.h"
#include "standalone/widgets/parameters/Notes.h"
#include "standalone/widgets/parameters/ParameterRow.h"
#include "standalone/widgets/parameters/PortEdits.h"
#include "standalone/widgets/parameters/info/MetadataTable.h"
#include "standalone/widgets/parameters/info/PortsModel.h"
#include "standalone/widgets/parameters/info/WatchView.h"

namespace orvuilib {

using orvlib::NodeRef;
using orvlib::PortRef;
using orvUI_v1::CommandHook;

namespace {

constexpr int kMostPorts = 14;

QToolButton* makeArrow(QChar sign, const char* tip, QWidget* parent) {
  auto* button = new QToolButton(parent);
  button->setText(sign);
  button->setToolTip(tip);
  button->setAutoRaise(true);
  return button;
}

}  // namespace

InfoPanel::InfoPanel(QWidget* parent)
    : QScrollArea(parent),
      page_(new QWidget(this)),
      blank_(makeNote("Nothing is selected", this)),
      readOnly_(makeNote("Read-only: nothing here can be edited", page_)),
      place_(makeText("place")),
      previous_(makeArrow(QChar(0x2039), "The node before", page_)),
      next_(makeArrow(QChar(0x203A), "The next node", page_)),
      name_(makeText("name")),
      type_(makeText("type")),
      typeName_(makeText("typeName")),
      path_(makeText("path")),
      origin_(makeText("origin")),
      description_(makeText("description")),
      ports_(new PortsModel(this)),
      portTable_(new QTableView(page_)),
      nodeMetadata_(new MetadataTable(page_)),
      compoundMetadata_(new MetadataTable(page_)) {
  setFrameShape(QFrame::NoFrame);
  setWidgetResizable(true);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  const int gap = style::gap(*this);
  auto* layout = new QVBoxLayout(page_);
  layout->setContentsMargins(2 * gap, 2 * gap, 2 * gap, 2 * gap);
  layout->setSpacing(gap);
  makeHeader(*layout);
  makeSections(*layout);
  layout->addStretch(1);
  layout->addWidget(readOnly_);
  auto* all = new QWidget(this);
  auto* outer = new QVBoxLayout(all);
  outer->setContentsMargins(0, 0, 0, 0);
  outer->addWidget(blank_);
  outer->addWidget(page_);
  setWidget(all);
  showNode(NodeRef());
}

QLabel* InfoPanel::makeText(const char* name) {
  auto* label = new QLabel(page_);
  label->setObjectName(name);
  label->setTextFormat(Qt::PlainText);
  label->setWordWrap(true);
  label->setTextInteractionFlags(Qt::TextSelectableByMouse);
  label->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  return label;
}

void InfoPanel::makeHeader(QVBoxLayout& layout) {
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
  QPalette faint = palette();
  faint.setColor(QPalette::WindowText, style::faintText(*this));
  for (QLabel* label : {typeName_, origin_, path_, place_}) label->setPalette(faint);
  auto* turner = new QHBoxLayout;
  place_->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);
  place_->setWordWrap(false);
  turner->addWidget(name_, 1);
  turner->addWidget(previous_);
  turner->addWidget(place_);
  turner->addWidget(next_);
  layout.addLayout(turner);
  for (QLabel* label : {type_, typeName_, path_, origin_, description_}) layout.addWidget(label);
  connect(previous_, &QToolButton::clicked, this, [this] { turn(-1); });
  connect(next_, &QToolButton::clicked, this, [this] { turn(1); });
}

QLabel* InfoPanel::addSection(QVBoxLayout& layout, const char* title) {
  auto* label = new QLabel(title, page_);
  const int gap = style::gap(*this);
  QFont bold = font();
  bold.setBold(true);
  label->setFont(bold);
  label->setAutoFillBackground(true);
  QPalette bar = palette();
  bar.setColor(QPalette::Window, style::groupBackground(*this));
  label->setPalette(bar);
  label->setMargin(gap / 2 + 1);
  layout.addSpacing(gap);
  layout.addWidget(label);
  return label;
}

void InfoPanel::makeSections(QVBoxLayout& layout) {
  addSection(layout, "States");
  flagLayout_ = new QVBoxLayout;
  layout.addLayout(flagLayout_);
  addSection(layout, "Ports");
  styleTable(*portTable_);
  portTable_->setModel(ports_);
  portTable_->setObjectName("ports");
  portTable_->setIconSize(QSize(2, 2) * style::gap(*this));
  QHeaderView& header = *portTable_->horizontalHeader();
  header.setSectionResizeMode(QHeaderView::Stretch);
  header.setSectionResizeMode(PortsModel::kWatch, QHeaderView::Fixed);
  header.resizeSection(PortsModel::kWatch, style::lineHeight(*this));
  layout.addWidget(portTable_);
  addSection(layout, "Metadata");
  nodeMetadata_->setObjectName("node metadata");
  layout.addWidget(nodeMetadata_);
  compoundTitle_ = addSection(layout, "Metadata of the compound");
  compoundMetadata_->setObjectName("compound metadata");
  layout.addWidget(compoundMetadata_);
  watchTitle_ = addSection(layout, "Watch points");
  watchLayout_ = new QVBoxLayout;
  layout.addLayout(watchLayout_);
  ports_->edited = [this] { tellEdited(); };
  nodeMetadata_->edited = [this] { tellEdited(); };
  compoundMetadata_->edited = [this] { tellEdited(); };
}

void InfoPanel::tellEdited() {
  if (edited) edited();
}

void InfoPanel::showNodes(const std::vector<NodeRef>& nodes) {
  nodes_ = nodes;
  const auto isShown = [this](const NodeRef& node) { return node.get() == node_.get(); };
  if (std::ranges::any_of(nodes_, isShown)) {
    refresh();
  } else {
    showNode(nodes_.empty() ? NodeRef() : nodes_.front());
  }
}

void InfoPanel::turn(int by) {
  const auto isShown = [this](const NodeRef& node) { return node.get() == node_.get(); };
  const auto at = std::ranges::find_if(nodes_, isShown) - nodes_.begin() + by;
  if (at >= 0 && at < static_cast<std::ptrdiff_t>(nodes_.size())) {
    showNode(nodes_[static_cast<std::size_t>(at)]);
  }
}

void InfoPanel::showNode(const NodeRef& node) {
  node_ = node;
  ports_->show(node_);
  const auto target = [this](bool shown, NodeMetadata::Kind kind) {
    return shown ? std::make_unique<NodeMetadata>(node_, kind) : nullptr;
  };
  const bool isCompound = node_ && node_->compound();
  nodeMetadata_->showTarget(target(!!node_, CommandHook::kTargetNode));
  compoundMetadata_->showTarget(target(isCompound, CommandHook::kTargetCompound));
  compoundMetadata_->setVisible(isCompound);
  compoundTitle_->setVisible(isCompound);
  makeFlagBoxes();
  verticalScrollBar()->setValue(0);
  refresh();
}

void InfoPanel::follow(unsigned char) { refresh(); }

void InfoPanel::refresh() {
  page_->setVisible(!!node_);
  blank_->setVisible(!node_);
  if (!node_) {
    refreshWatches();
    return;
  }
  refreshTexts();
  refreshFlags();
  ports_->refresh();
  fitHeight(*portTable_, kMostPorts);
  nodeMetadata_->refresh();
  compoundMetadata_->refresh();
  refreshWatches();
}

void InfoPanel::refreshTexts() {
  const auto* known = node_->description();
  const auto* compound = node_->compound();
  name_->setText(toText(node_->name()));
  type_->setText(niceTypeName(*node_));
  typeName_->setText(toText(node_->typeName()));
  path_->setText(toText(node_->fullPath()));
  const QString origin = compound ? toText(compound->origin()) : QString();
  const bool isReference = compound && compound->isReference();
  origin_->setText((isReference ? "A reference to " : "A copy of ") + origin);
  origin_->setVisible(!origin.isEmpty());
  description_->setText(known ? toText(known->description) : QString());
  description_->setVisible(!description_->text().isEmpty());
  const auto isShown = [this](const NodeRef& node) { return node.get() == node_.get(); };
  const auto at = std::ranges::find_if(nodes_, isShown) - nodes_.begin();
  const auto count = static_cast<std::ptrdiff_t>(nodes_.size());
  place_->setText(QString("%1 of %2").arg(at + 1).arg(count));
  for (QWidget* part : {static_cast<QWidget*>(place_), static_cast<QWidget*>(previous_),
                        static_cast<QWidget*>(next_)}) {
    part->setVisible(count > 1);
  }
  previous_->setEnabled(at > 0);
  next_->setEnabled(at + 1 < count);
  readOnly_->setVisible(!hookOf(node_->core()));
}

void InfoPanel::makeFlagBoxes() {
  for (QCheckBox* box : flagBoxes_) {
    box->hide();
    box->deleteLater();
  }
  flagBoxes_.clear();
  if (!node_) return;
  const ORV_v1::NodeStateFlags& flags = node_->getStateFlags();
  for (unsigned int i = 0; i < flags.size(); ++i) {
    const ORV_v1::NodeStateFlag flag = flags[i];
    auto* box = new QCheckBox(QString::fromUtf8(flag.name.toChar()), page_);
    box->setToolTip(QString::fromUtf8(flag.description.toChar()));
    box->setObjectName(QString("flag ") + QChar(flag.key));
    connect(box, &QCheckBox::clicked, this, [this, key = flag.key, box] { setFlag(key, *box); });
    flagLayout_->addWidget(box);
    flagBoxes_.push_back(box);
  }
}

/// The box shows what the graph has, not what was asked for.
void InfoPanel::setFlag(char key, QCheckBox& box) {
  CommandHook* hook = node_ && node_->container() ? hookOf(node_->core()) : nullptr;
  if (hook) hook->setStateFlag(CommandHook::NodeHandle(node_.get()), key, box.isChecked());
  refreshFlags();
  tellEdited();
}

void InfoPanel::refreshFlags() {
  const ORV_v1::NodeStateFlags& flags = node_->getStateFlags();
  const bool isEditable = hookOf(node_->core()) != nullptr;
  for (unsigned int i = 0; i < flags.size() && i < flagBoxes_.size(); ++i) {
    flagBoxes_[i]->setChecked(flags[i].state == 0);
    flagBoxes_[i]->setEnabled(isEditable);
  }
}

void InfoPanel::refreshWatches() {
  const std::vector<PortRef> watched = ports_->watchedPorts();
  const auto isOf = [](const WatchView* view, const PortRef& port) {
    return &view->port() == port.get();
  };
  if (!std::ranges::equal(watches_, watched, isOf)) {
    for (WatchView* view : watches_) {
      view->hide();
      view->deleteLater();
    }
    watches_.clear();
    for (const PortRef& port : watched) {
      watches_.push_back(new WatchView(port, page_));
      watches_.back()->edited = [this] { tellEdited(); };
      watchLayout_->addWidget(watches_.back());
    }
  }
  watchTitle_->setVisible(!watched.empty());
  for (WatchView* view : watches_) view->refresh();
}

}  // namespace orvuilib
