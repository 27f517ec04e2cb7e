#include "standalone/widgets/parameters/info/WatchView.h"

#include <QLabel>
#include <QListView>
#include <QStringListModel>
#include <QToolButton>
#include <QVBoxLayout>

#include "standalone/graph/model/WatchPointObject.h"
#include "standalone/widgets/parameters/NumberFormat.h"
#include "standalone/widgets/parameters/ParameterRow.h"
#include "standalone/widgets/parameters/PortEdits.h"
#include "standalone/widgets/parameters/RowStyle.h"
#include "standalone/widgets/parameters/info/MetadataTable.h"
#include "standalone/widgets/parameters/info/Plot.h"
#include "standalone/widgets/parameters/info/Records.h"

namespace orvuilib {

using orvUI_v1::CommandHook;

namespace {

constexpr int kListLines = 4;

QString titleOf(const orvlib::PortObject& port, const orvlib::WatchPointObject& watch) {
  const QString records = watch.setup().changesOnly ? "changes" : "all evaluations";
  QString title = QString("<b>%1</b>  \u00b7  %2, the last %3")
                      .arg(toText(port.fullName()).toHtmlEscaped(), records)
                      .arg(watch.setup().limit);
  if (!watch.setup().enabled) title += "  \u00b7  disabled";
  return title;
}

}  // namespace

WatchView::WatchView(orvlib::PortRef port, QWidget* parent)
    : QWidget(parent),
      port_(std::move(port)),
      title_(new QLabel(this)),
      latest_(new QLabel(this)),
      plot_(new Plot(this)),
      list_(new QListView(this)),
      model_(new QStringListModel(this)),
      metadata_(new MetadataTable(this)),
      adder_(new QToolButton(this)),
      remover_(new QToolButton(this)) {
  const int gap = style::gap(*this);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(gap, 0, 0, gap);
  layout->setSpacing(gap);
  makeHead();
  makeBody();
  metadata_->showTarget(std::make_unique<WatchMetadata>(port_));
  metadata_->edited = [this] {
    if (edited) edited();
  };
  metadata_->refused = [this](const QString& reason) {
    if (refused) refused(reason);
  };
  refresh();
}

void WatchView::makeHead() {
  auto* top = new QHBoxLayout;
  remover_->setText(QString(QChar(0x2212)));
  remover_->setToolTip("Remove the watch point");
  remover_->setObjectName("remove watch point");
  connect(remover_, &QToolButton::clicked, this, [this] { remove(); });
  adder_->setText("+");
  adder_->setToolTip("Add metadata to the watch point");
  adder_->setObjectName("add watch metadata");
  connect(adder_, &QToolButton::clicked, metadata_, &QWidget::show);
  for (QToolButton* button : {adder_, remover_}) button->setAutoRaise(true);
  title_->setWordWrap(true);
  title_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  top->addWidget(title_, 1);
  top->addWidget(adder_);
  top->addWidget(remover_);
  static_cast<QVBoxLayout*>(layout())->addLayout(top);
}

void WatchView::makeBody() {
  latest_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  latest_->setTextFormat(Qt::PlainText);
  latest_->setObjectName("latest");
  list_->setModel(model_);
  list_->setUniformItemSizes(true);
  list_->setEditTriggers(QAbstractItemView::NoEditTriggers);
  list_->setFixedHeight(kListLines * style::lineHeight(*this));
  for (QWidget* part : {static_cast<QWidget*>(latest_), static_cast<QWidget*>(plot_),
                        static_cast<QWidget*>(list_), static_cast<QWidget*>(metadata_)}) {
    layout()->addWidget(part);
  }
  metadata_->hide();
}

WatchView::Shown WatchView::recordsNow() const {
  const orvlib::WatchPointObject* watch = port_->watchPoint();
  if (!watch || watch->records().empty()) return {};
  return {watch->records().size(), watch->records().back().evaluation};
}

void WatchView::followRecords() {
  if (recordsNow() != shown_) showRecords();
}

void WatchView::refresh() {
  const orvlib::WatchPointObject* watch = port_->watchPoint();
  if (!watch) return;
  title_->setText(titleOf(*port_, *watch));
  showRecords();
  if (!watch->metadata().empty()) metadata_->show();
  const orvlib::NodeObject* node = port_->node();
  const bool isOpen = node && isInOpenLevel(*node);
  for (QToolButton* button : {adder_, remover_}) button->setEnabled(isOpen);
  metadata_->refresh();
}

void WatchView::showRecords() {
  shown_ = recordsNow();
  Records records = readRecords(*port_);
  const QString latest = records.texts.isEmpty() ? QString() : records.texts.back();
  latest_->setText(records.texts.isEmpty()
                       ? "nothing recorded yet"
                       : QString("%1 recorded, now %2")
                             .arg(records.texts.size())
                             .arg(shortText(port_->watchPoint()->records().back().value)));
  latest_->setToolTip(latest);
  const bool plots = !records.curves.empty();
  plot_->setVisible(plots);
  list_->setVisible(!plots);
  if (plots) {
    plot_->showCurves(std::move(records.curves), records.names);
  } else if (model_->stringList() != records.texts) {
    model_->setStringList(records.texts);
    list_->scrollToBottom();
  }
}

void WatchView::remove() {
  const orvlib::NodeObject* node = port_->node();
  if (!node || !isInOpenLevel(*node)) return;
  hookOf(node->core())
      ->editWatchPoint(CommandHook::kRemoveWatchPoint, CommandHook::PortHandle(port_.get()), {},
                       {});
  if (port_->watchPoint() && refused) refused("The graph refused to remove the watch point");
  if (edited) edited();
}

}  // namespace orvuilib
