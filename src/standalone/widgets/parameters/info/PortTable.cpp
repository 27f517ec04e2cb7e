#include "standalone/widgets/parameters/info/PortTable.h"

#include <QHeaderView>
#include <QPainter>
#include <QPainterPath>
#include <algorithm>

#include "standalone/widgets/parameters/FieldStyle.h"
#include "standalone/widgets/parameters/RowStyle.h"
#include "standalone/widgets/parameters/info/MetadataTable.h"

namespace orvuilib {
namespace {

/// A narrower table has no column of types.
constexpr int kLeastLetters = 32;

/// An eye.
QPixmap watchSign(const QWidget& widget) {
  const int height = widget.fontMetrics().height();
  const double ratio = widget.devicePixelRatioF();
  QPixmap sign(QSize(height, height) * ratio);
  sign.setDevicePixelRatio(ratio);
  sign.fill(Qt::transparent);
  QPainter painter(&sign);
  painter.setRenderHint(QPainter::Antialiasing);
  const double unit = height / 12.0;
  QPainterPath lids;
  lids.moveTo(unit, 6 * unit);
  lids.quadTo(6 * unit, 0, 11 * unit, 6 * unit);
  lids.quadTo(6 * unit, 12 * unit, unit, 6 * unit);
  painter.setPen(QPen(widget.palette().color(QPalette::ButtonText), unit));
  painter.drawPath(lids);
  painter.setBrush(painter.pen().color());
  painter.drawEllipse(QPointF(6 * unit, 6 * unit), 1.4 * unit, 1.4 * unit);
  return sign;
}

}  // namespace

PortTable::PortTable(QWidget* parent) : QTableView(parent), ports_(new PortsModel(this)) {
  styleTable(*this);
  setObjectName("ports");
  setSelectionBehavior(QAbstractItemView::SelectRows);
  setIconSize(QSize(2, 2) * style::gap(*this));
  ports_->setWatchSign(watchSign(*this));
  setModel(ports_);
  horizontalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  horizontalHeader()->setStretchLastSection(true);
  connect(ports_, &QAbstractItemModel::modelReset, this, [this] {
    fitHeight(*this);
    fitColumns();
    if (currentMoved) currentMoved();
  });
  fitHeight(*this);
}

void PortTable::refresh() {
  ports_->refresh();
  fitColumns();
}

/// The value gets what the others leave, and a good part at the least. Where names would be cut to
/// nothing the type goes, which the tool tip tells too.
void PortTable::fitColumns() {
  QHeaderView& header = *horizontalHeader();
  const int room = viewport()->width();
  const auto fit = [&](int column, int most) {
    const int wanted = std::max(sizeHintForColumn(column), header.sectionSizeHint(column));
    header.resizeSection(column, std::min(wanted, most));
  };
  const int margin = style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, this) + 1;
  const int box = style()->pixelMetric(QStyle::PM_IndicatorWidth, nullptr, this);
  header.resizeSection(PortsModel::kWatch, box + 2 * margin);
  const bool hasTypes = room >= kLeastLetters * fontMetrics().averageCharWidth();
  header.setSectionHidden(PortsModel::kType, !hasTypes);
  fit(PortsModel::kName, room * (hasTypes ? 32 : 44) / 100);
  if (hasTypes) fit(PortsModel::kType, room * 24 / 100);
}

void PortTable::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
  QTableView::currentChanged(current, previous);
  if (currentMoved) currentMoved();
}

void PortTable::resizeEvent(QResizeEvent* event) {
  QTableView::resizeEvent(event);
  fitColumns();
}

}  // namespace orvuilib
