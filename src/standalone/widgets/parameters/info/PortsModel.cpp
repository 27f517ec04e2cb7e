#include "standalone/widgets/parameters/info/PortsModel.h"

#include <QColor>
#include <algorithm>

#include "standalone/graph/model/WatchPointObject.h"
#include "standalone/graph/texts/PropertiesText.h"
#include "standalone/widgets/look/Feeding.h"
#include "standalone/widgets/parameters/NumberFormat.h"
#include "standalone/widgets/parameters/ParameterRow.h"
#include "standalone/widgets/parameters/PortEdits.h"
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

/// Of what is computed, what was recorded last.
QString valueText(PortObject& port) {
  if (port.isInput() && isFed(port)) return feedersText(port);
  const orvlib::WatchPointObject* watch = watchedFace(port).watchPoint();
  if (watch && !watch->records().empty()) return shortText(watch->records().back().value);
  if (isFed(port)) return feedersText(port);
  return port.isSettable() ? shortText(port.unconnectedValue()) : QString();
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

PortRef PortsModel::port(int line) const {
  return line >= 0 && line < rowCount() ? ports_[static_cast<std::size_t>(line)] : PortRef();
}

QString PortsModel::text(PortObject& port, int column) const {
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
  QStringList lines{(port.isInput() ? "Input " : "Output ") + toText(port.name()) + "  (" +
                    toText(port.valueType().name) + ")"};
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
  if (orientation != Qt::Horizontal) return {};
  if (section == kWatch) {
    if (role == Qt::DecorationRole) return watchSign_;
    return role == Qt::ToolTipRole ? QVariant("Watched: what the port yields is recorded")
                                   : QVariant();
  }
  static const char* const titles[] = {"", "Port", "Type", "Value"};
  return role == Qt::DisplayRole ? QVariant(titles[section]) : QVariant();
}

Qt::ItemFlags PortsModel::flags(const QModelIndex& index) const {
  const Qt::ItemFlags flags = QAbstractTableModel::flags(index);
  if (!index.isValid() || index.column() != kWatch) return flags;
  const bool isOpen = node_ && isInOpenLevel(*node_);
  return isOpen ? flags | Qt::ItemIsUserCheckable : flags & ~Qt::ItemIsEnabled;
}

bool PortsModel::setData(const QModelIndex& index, const QVariant& value, int role) {
  const bool fits = index.isValid() && role == Qt::CheckStateRole;
  if (!fits || !node_ || !isInOpenLevel(*node_)) return false;
  PortObject& port = watchedFace(*ports_[static_cast<std::size_t>(index.row())]);
  const bool wanted = value.toInt() == Qt::Checked;
  if (wanted == (port.watchPoint() != nullptr)) return false;
  const auto edit = wanted ? CommandHook::kCreateWatchPoint : CommandHook::kRemoveWatchPoint;
  hookOf(node_->core())->editWatchPoint(edit, CommandHook::PortHandle(&port), {}, {});
  if (wanted != (port.watchPoint() != nullptr) && refused) {
    refused(QString("The graph refused to watch %1").arg(toText(port.name())));
  }
  if (edited) edited();
  return true;
}

}  // namespace orvuilib
