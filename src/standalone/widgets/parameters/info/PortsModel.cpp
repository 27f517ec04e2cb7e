#include "standalone/widgets/parameters/info/PortsModel.h"

#include <QColor>
#include <algorithm>

#include "standalone/graph/model/CompoundObject.h"
#include "standalone/graph/texts/PropertiesText.h"
#include "standalone/widgets/parameters/PortEdits.h"
#include "standalone/widgets/parameters/RowState.h"
#include "standalone/widgets/parameters/RowStyle.h"

namespace orvuilib {

using orvlib::NodeRef;
using orvlib::PortObject;
using orvlib::PortRef;
using orvUI_v1::CommandHook;

namespace {

/// The face whose watch point is meant: of an output of a compound the one inside, where values
/// arrive.
PortObject& watchedFace(PortObject& port) {
  const bool isOuterOutput = port.kind() == orvlib::PortKind::Outer && !port.isInput();
  return isOuterOutput && port.twin() ? *port.twin() : port;
}

QString valueText(const PortObject& port) {
  if (port.isInput() && isConnected(port)) {
    const RowState state =
        readState({{}, {}, RowKind::Text, {PortRef(const_cast<PortObject*>(&port))}});
    QStringList names;
    for (const PortRef& source : state.sources) names.append(sourceName(*source));
    return QString(QChar(0x2190)) + " " + names.join(", ");
  }
  constexpr int kMostTexts = 16;
  const QStringList texts = valueTexts(port);
  const QString shown = texts.mid(0, kMostTexts).join(", ");
  return texts.size() > kMostTexts ? shown + QChar(0x2026) : shown;
}

}  // namespace

void PortsModel::show(const NodeRef& node) {
  beginResetModel();
  node_ = node;
  ports_ = read();
  endResetModel();
}

std::vector<PortRef> PortsModel::read() const {
  std::vector<PortRef> ports;
  if (!node_) return ports;
  for (PortObject* port : node_->inputList().items()) ports.emplace_back(port);
  for (PortObject* port : node_->outputList().items()) ports.emplace_back(port);
  return ports;
}

void PortsModel::refresh() {
  std::vector<PortRef> now = read();
  const auto isSame = [](const PortRef& a, const PortRef& b) { return a.get() == b.get(); };
  if (std::ranges::equal(now, ports_, isSame)) {
    if (!ports_.empty()) emit dataChanged(index(0, 0), index(rowCount() - 1, kColumns - 1));
    return;
  }
  beginResetModel();
  ports_ = std::move(now);
  endResetModel();
}

std::vector<PortRef> PortsModel::watchedPorts() const {
  std::vector<PortRef> watched;
  for (const PortRef& port : ports_) {
    PortObject& face = watchedFace(*port);
    if (face.watchPoint()) watched.emplace_back(&face);
  }
  return watched;
}

int PortsModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(ports_.size());
}

int PortsModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(kColumns);
}

QString PortsModel::text(const PortObject& port, int column) const {
  switch (column) {
    case kName:
      return toText(port.name());
    case kType:
      return toText(port.valueType().name);
    case kValue:
      return valueText(port);
    default:
      return {};
  }
}

QString PortsModel::tip(const PortObject& port) const {
  QStringList lines{(port.isInput() ? "Input " : "Output ") + toText(port.name())};
  const auto* known = port.description();
  if (known && !known->description.empty()) lines.append(toText(known->description));
  if (!port.metadata().empty()) lines.append(toText(orvlib::writeProperties(port.metadata())));
  return lines.join("\n");
}

QVariant PortsModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid()) return {};
  PortObject& port = *ports_[static_cast<std::size_t>(index.row())];
  if (role == Qt::DisplayRole) return text(port, index.column());
  if (role == Qt::ToolTipRole) return tip(port);
  if (role == Qt::DecorationRole && index.column() == kName) return style::ofType(port.valueType());
  if (role == Qt::CheckStateRole && index.column() == kWatch) {
    return watchedFace(port).watchPoint() ? Qt::Checked : Qt::Unchecked;
  }
  return {};
}

QVariant PortsModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (role != Qt::DisplayRole || orientation != Qt::Horizontal) return {};
  static const char* const titles[] = {"", "Port", "Type", "Value"};
  return titles[section];
}

bool PortsModel::canWatch() const {
  return node_ && node_->container() && hookOf(node_->core()) &&
         (!node_->parent() || node_->parent()->isOpenToEdits());
}

Qt::ItemFlags PortsModel::flags(const QModelIndex& index) const {
  const Qt::ItemFlags flags = QAbstractTableModel::flags(index);
  const bool isBox = index.isValid() && index.column() == kWatch;
  return isBox && canWatch() ? flags | Qt::ItemIsUserCheckable : flags;
}

bool PortsModel::setData(const QModelIndex& index, const QVariant& value, int role) {
  if (!index.isValid() || role != Qt::CheckStateRole || !canWatch()) return false;
  PortObject& port = watchedFace(*ports_[static_cast<std::size_t>(index.row())]);
  const bool wanted = value.toInt() == Qt::Checked;
  if (wanted == (port.watchPoint() != nullptr)) return false;
  const auto edit = wanted ? CommandHook::kCreateWatchPoint : CommandHook::kRemoveWatchPoint;
  hookOf(node_->core())->editWatchPoint(edit, CommandHook::PortHandle(&port), {}, {});
  if (edited) edited();
  return true;
}

}  // namespace orvuilib
