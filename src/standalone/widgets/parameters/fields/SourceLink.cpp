#include "standalone/widgets/parameters/fields/SourceLink.h"

#include <QMenu>
#include <QPainter>

#include "standalone/widgets/look/Feeding.h"
#include "standalone/widgets/parameters/RowStyle.h"
#include "standalone/widgets/selection/SelectionModel.h"

namespace orvuilib {

using orvlib::PortRef;

namespace {

void selectNodeOf(const PortRef& source) {
  orvlib::NodeObject* node = source->node();
  if (!node || !node->container()) return;
  SelectionModel::instance().reveal(ORV_v1::AddRefWrapper<ORV_v1::Node>(node));
}

QString pathText(const PortRef& source) { return toText(source->fullPath()); }

}  // namespace

SourceLink::SourceLink(QWidget* parent) : QToolButton(parent) {
  setAutoRaise(true);
  setFocusPolicy(Qt::StrongFocus);
  setCursor(Qt::PointingHandCursor);
  setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
  connect(this, &QToolButton::clicked, this, [this] { follow(); });
}

void SourceLink::showSources(const std::vector<PortRef>& sources) {
  sources_ = sources;
  const QString arrow = QString(QChar(0x2190)) + " ";
  const QString name = sources.size() == 1 ? sourceName(*sources.front())
                                           : QString("%1 sources").arg(sources.size());
  setText(sources.empty() ? QString() : arrow + name);
  QStringList paths;
  for (const PortRef& source : sources) paths.append(pathText(source));
  setToolTip(paths.isEmpty() ? QString() : "Select " + paths.join(", "));
}

void SourceLink::follow() {
  if (sources_.size() == 1) {
    selectNodeOf(PortRef(sources_.front()));
    return;
  }
  auto* menu = new QMenu(this);
  menu->setAttribute(Qt::WA_DeleteOnClose);
  for (const PortRef& source : sources_) {
    menu->addAction(pathText(source), this, [source] { selectNodeOf(source); });
  }
  menu->popup(mapToGlobal(QPoint(0, height())));
}

void SourceLink::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  const int gap = style::gap(*this);
  if (underMouse() || hasFocus()) painter.fillRect(rect(), style::groupBackground(*this));
  painter.setPen(style::mix(palette().color(QPalette::WindowText),
                            palette().color(QPalette::Highlight), 0.55));
  const QRect place = rect().adjusted(gap, 0, -gap, 0);
  const QString shown = fontMetrics().elidedText(text(), Qt::ElideMiddle, place.width());
  painter.drawText(place, Qt::AlignVCenter | Qt::AlignLeft, shown);
}

}  // namespace orvuilib
