#include "standalone/widgets/parameters/info/WatchView.h"

#include <QLabel>
#include <QListView>
#include <QStringListModel>
#include <QToolButton>
#include <QVBoxLayout>

#include "standalone/graph/model/WatchPointObject.h"
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
      metadata_(new MetadataTable(this)) {
  const int gap = style::gap(*this);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, gap);
  layout->setSpacing(gap);
  auto* top = new QHBoxLayout;
  auto* remover = new QToolButton(this);
  remover->setText(QString(QChar(0x2212)));
  remover->setToolTip("Remove the watch point");
  remover->setObjectName("remove watch point");
  remover->setAutoRaise(true);
  connect(remover, &QToolButton::clicked, this, [this] { remove(); });
  title_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  latest_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  latest_->setTextFormat(Qt::PlainText);
  top->addWidget(title_, 1);
  top->addWidget(remover);
  layout->addLayout(top);
  for (QWidget* part : {static_cast<QWidget*>(latest_), static_cast<QWidget*>(plot_),
                        static_cast<QWidget*>(list_), static_cast<QWidget*>(metadata_)}) {
    layout->addWidget(part);
  }
  list_->setModel(model_);
  list_->setUniformItemSizes(true);
  list_->setEditTriggers(QAbstractItemView::NoEditTriggers);
  list_->setFixedHeight(kListLines * style::lineHeight(*this));
  metadata_->showTarget(std::make_unique<WatchMetadata>(port_));
  metadata_->edited = [this] {
    if (edited) edited();
  };
  refresh();
}

void WatchView::refresh() {
  const orvlib::WatchPointObject* watch = port_->watchPoint();
  if (!watch) return;
  title_->setText(titleOf(*port_, *watch));
  Records records = readRecords(*port_);
  const QString latest = records.texts.isEmpty() ? QString() : records.texts.back();
  latest_->setText(records.texts.isEmpty()
                       ? "nothing recorded yet"
                       : QString("%1 recorded, now %2").arg(records.texts.size()).arg(latest));
  latest_->setToolTip(latest);
  const bool plots = !records.curves.empty();
  plot_->setVisible(plots);
  list_->setVisible(!plots);
  if (plots) {
    plot_->showCurves(std::move(records.curves));
  } else if (model_->stringList() != records.texts) {
    model_->setStringList(records.texts);
    list_->scrollToBottom();
  }
  metadata_->refresh();
}

void WatchView::remove() {
  const orvlib::NodeObject* node = port_->node();
  CommandHook* hook = node && node->container() ? hookOf(node->core()) : nullptr;
  if (!hook) return;
  hook->editWatchPoint(CommandHook::kRemoveWatchPoint, CommandHook::PortHandle(port_.get()), {},
                       {});
  if (edited) edited();
}

}  // namespace orvuilib
