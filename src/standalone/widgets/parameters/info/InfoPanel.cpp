#include "standalone/widgets/parameters/info/InfoPanel.h"

#include <QLabel>
#include <QScrollBar>
#include <QVBoxLayout>
#include <algorithm>

#include "standalone/graph/model/Changes.h"
#include "standalone/widgets/parameters/Notes.h"
#include "standalone/widgets/parameters/ParameterRow.h"
#include "standalone/widgets/parameters/PortEdits.h"
#include "standalone/widgets/parameters/ReadOnlyNote.h"
#include "standalone/widgets/parameters/info/InfoHeader.h"
#include "standalone/widgets/parameters/info/MetadataTable.h"
#include "standalone/widgets/parameters/info/PortTable.h"
#include "standalone/widgets/parameters/info/StateBoxes.h"
#include "standalone/widgets/parameters/info/WatchView.h"

namespace orvuilib {

using orvlib::NodeRef;
using orvlib::PortRef;
using orvUI_v1::CommandHook;

InfoPanel::InfoPanel(QWidget* parent)
    : QScrollArea(parent),
      page_(new QWidget(this)),
      blank_(makeNote("Nothing is selected", this)),
      readOnly_(new ReadOnlyNote(this)),
      header_(new InfoHeader(page_)),
      states_(new StateBoxes(page_)),
      ports_(new PortTable(page_)),
      portMetadata_(new MetadataTable(page_)),
      nodeMetadata_(new MetadataTable(page_)),
      compoundMetadata_(new MetadataTable(page_)) {
  setFrameShape(QFrame::NoFrame);
  setWidgetResizable(true);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  const int gap = style::gap(*this);
  auto* layout = new QVBoxLayout(page_);
  layout->setContentsMargins(2 * gap, 2 * gap, 2 * gap, 2 * gap);
  layout->setSpacing(gap);
  layout->addWidget(header_);
  makeSections(*layout);
  layout->addStretch(1);
  auto* all = new QWidget(this);
  auto* outer = new QVBoxLayout(all);
  outer->setContentsMargins(0, 0, 0, 0);
  outer->addWidget(blank_);
  outer->addWidget(page_);
  setWidget(all);
  header_->turnAsked = [this](int by) { turn(by); };
  ports_->currentMoved = [this] { showPortMetadata(); };
  showNode(NodeRef());
}

QLabel* InfoPanel::addSection(QVBoxLayout& layout, const char* title) {
  auto* label = new QLabel(title, page_);
  const int gap = style::gap(*this);
  QFont bold = font();
  bold.setBold(true);
  label->setFont(bold);
  label->setAutoFillBackground(true);
  label->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  QPalette bar = palette();
  bar.setColor(QPalette::Window, style::groupBackground(*this));
  label->setPalette(bar);
  label->setMargin(gap / 2 + 1);
  layout.addSpacing(gap);
  layout.addWidget(label);
  return label;
}

template <class Part>
void InfoPanel::tellOf(Part& part) {
  part.edited = [this] {
    if (edited) edited();
  };
  part.refused = [this](const QString& reason) {
    if (refused) refused(reason);
  };
}

void InfoPanel::makeSections(QVBoxLayout& layout) {
  addSection(layout, "States");
  layout.addWidget(states_);
  addSection(layout, "Ports");
  layout.addWidget(ports_);
  portTitle_ = addSection(layout, "Metadata of the port");
  portMetadata_->setObjectName("port metadata");
  layout.addWidget(portMetadata_);
  addSection(layout, "Metadata");
  nodeMetadata_->setObjectName("node metadata");
  layout.addWidget(nodeMetadata_);
  compoundTitle_ = addSection(layout, "Metadata of the compound");
  compoundMetadata_->setObjectName("compound metadata");
  layout.addWidget(compoundMetadata_);
  watchTitle_ = addSection(layout, "Watch points");
  watchLayout_ = new QVBoxLayout;
  layout.addLayout(watchLayout_);
  tellOf(*states_);
  tellOf(ports_->ports());
  for (MetadataTable* table : {portMetadata_, nodeMetadata_, compoundMetadata_}) tellOf(*table);
}

int InfoPanel::placeOfNode() const {
  const auto isShown = [this](const NodeRef& node) { return node.get() == node_.get(); };
  return static_cast<int>(std::ranges::find_if(nodes_, isShown) - nodes_.begin());
}

void InfoPanel::showNodes(const std::vector<NodeRef>& nodes) {
  nodes_ = nodes;
  if (node_ && placeOfNode() < static_cast<int>(nodes_.size())) {
    refresh();
  } else {
    showNode(nodes_.empty() ? NodeRef() : nodes_.front());
  }
}

void InfoPanel::turn(int by) {
  const int at = placeOfNode() + by;
  if (at >= 0 && at < static_cast<int>(nodes_.size())) {
    showNode(nodes_[static_cast<std::size_t>(at)]);
  }
}

void InfoPanel::showNode(const NodeRef& node) {
  node_ = node;
  states_->showNode(node_);
  ports_->ports().show(node_);
  const auto target = [this](bool shown, NodeMetadata::Kind kind) {
    return shown ? std::make_unique<NodeMetadata>(node_, kind) : nullptr;
  };
  const bool isCompound = node_ && node_->compound();
  nodeMetadata_->showTarget(target(!!node_, CommandHook::kTargetNode));
  compoundMetadata_->showTarget(target(isCompound, CommandHook::kTargetCompound));
  compoundMetadata_->setVisible(isCompound);
  compoundTitle_->setVisible(isCompound);
  showPortMetadata();
  verticalScrollBar()->setValue(0);
  refresh();
}

void InfoPanel::showPortMetadata() {
  const PortRef port = ports_->currentPort();
  portMetadata_->showTarget(port ? std::make_unique<PortMetadata>(port) : nullptr);
  portTitle_->setVisible(!!port);
  portMetadata_->setVisible(!!port);
  if (port) portTitle_->setText("Metadata of " + toText(port->name()));
}

void InfoPanel::follow(unsigned char bits) {
  if (bits != 0 || !node_) {
    refresh();
  } else {
    for (WatchView* view : watches_) view->followRecords();
    if (!watches_.empty()) ports_->viewport()->update();
  }
}

void InfoPanel::refresh() {
  page_->setVisible(!!node_);
  blank_->setVisible(!node_);
  refreshNote();
  refreshWatches();
  if (!node_) return;
  header_->show(*node_, placeOfNode(), static_cast<int>(nodes_.size()));
  states_->refresh();
  ports_->refresh();
  for (MetadataTable* table : {portMetadata_, nodeMetadata_, compoundMetadata_}) table->refresh();
}

void InfoPanel::refreshNote() {
  readOnly_->tell(node_ ? readOnlyReason(*node_) : QString());
  placeNote();
}

/// It stays where it is while the page is scrolled.
void InfoPanel::placeNote() {
  const int noteHeight = readOnly_->isHidden() ? 0 : readOnly_->heightForWidth(width());
  setViewportMargins(0, 0, 0, noteHeight);
  readOnly_->setGeometry(0, height() - noteHeight, width(), noteHeight);
}

void InfoPanel::resizeEvent(QResizeEvent* event) {
  QScrollArea::resizeEvent(event);
  placeNote();
}

void InfoPanel::refreshWatches() {
  const std::vector<PortRef> watched = ports_->ports().watchedPorts();
  const auto isOf = [](const WatchView* view, const PortRef& port) {
    return &view->port() == port.get();
  };
  if (!std::ranges::equal(watches_, watched, isOf)) makeWatches(watched);
  watchTitle_->setVisible(!watched.empty());
  for (WatchView* view : watches_) view->refresh();
}

void InfoPanel::makeWatches(const std::vector<PortRef>& watched) {
  for (WatchView* view : watches_) {
    view->hide();
    view->deleteLater();
  }
  watches_.clear();
  for (const PortRef& port : watched) {
    watches_.push_back(new WatchView(port, page_));
    tellOf(*watches_.back());
    watchLayout_->addWidget(watches_.back());
  }
}

}  // namespace orvuilib
