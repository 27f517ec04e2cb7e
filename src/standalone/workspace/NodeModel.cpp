#include "standalone/workspace/NodeModel.h"

#include <algorithm>
#include <iterator>

#include "standalone/host/language/Tokenizer.h"
#include "standalone/host/scene/Scene.h"
#include "standalone/workspace/Theme.h"
#include "standalone/workspace/Workspace.h"

namespace vesk {

NodeModel::NodeModel(Scene& scene) : scene_(scene), rows_(wantedRows()) {}

bool NodeModel::fits(const SceneNode& node) const {
  return filter_.isEmpty() ||
         QString::fromStdString(node.name()).contains(filter_, Qt::CaseInsensitive) ||
         QString::fromStdString(node.type()).contains(filter_, Qt::CaseInsensitive);
}

std::vector<SceneNodePtr> NodeModel::wantedRows() const {
  std::vector<SceneNodePtr> rows;
  rows.reserve(filter_.isEmpty() ? scene_.size() : 0);
  for (const auto& [place, node] : scene_.nodes()) {
    if (fits(*node)) rows.push_back(node);
  }
  return rows;
}

/// What lies between the rows that are the same at both ends is replaced as a whole: a change
/// mostly touches one place.
void NodeModel::refresh() {
  std::vector<SceneNodePtr> wanted = wantedRows();
  const auto first = std::ranges::mismatch(rows_, wanted).in1 - rows_.begin();
  const auto shorter = std::min(rows_.size(), wanted.size());
  std::size_t last = 0;
  while (first + last < shorter &&
         rows_[rows_.size() - 1 - last] == wanted[wanted.size() - 1 - last]) {
    ++last;
  }
  const std::size_t oldCount = rows_.size() - first - last;
  replaceRows(first, oldCount, {wanted.begin() + first, wanted.end() - last});
  if (!rows_.empty()) emit dataChanged(index(0, Name), index(rowCount() - 1, Type));
}

void NodeModel::replaceRows(std::size_t first, std::size_t oldCount,
                            std::vector<SceneNodePtr> rows) {
  const int at = static_cast<int>(first);
  if (oldCount > 0) {
    beginRemoveRows({}, at, at + static_cast<int>(oldCount) - 1);
    rows_.erase(rows_.begin() + at, rows_.begin() + at + oldCount);
    endRemoveRows();
  }
  if (rows.empty()) return;
  beginInsertRows({}, at, at + static_cast<int>(rows.size()) - 1);
  rows_.insert(rows_.begin() + at, std::move_iterator(rows.begin()),
               std::move_iterator(rows.end()));
  endInsertRows();
}

void NodeModel::setFilter(const QString& text) {
  filter_ = text.trimmed();
  refresh();
}

std::vector<int> NodeModel::selectedRows() const {
  std::vector<int> selected;
  const Selection& selection = scene_.selection();
  if (selection.size() == 0) return selected;
  for (std::size_t row = 0; row < rows_.size(); ++row) {
    if (selection.contains(*rows_[row])) selected.push_back(static_cast<int>(row));
  }
  return selected;
}

int NodeModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

int NodeModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : kColumns;
}

QVariant NodeModel::data(const QModelIndex& index, int role) const {
  const SceneNode& node = *rows_[index.row()];
  const bool name = index.column() == Name;
  switch (role) {
    case Qt::DisplayRole:
    case Qt::EditRole:
      return QString::fromStdString(name ? node.name() : node.type());
    case Qt::ToolTipRole:
      return QString::fromStdString(node.name() + "\n" + node.type() + "\n" + node.uuid());
    case Qt::ForegroundRole:
      return name ? QVariant() : QVariant(theme::kDimText);
    default:
      return {};
  }
}

QVariant NodeModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal) return {};
  if (role == Qt::TextAlignmentRole) return int(Qt::AlignLeft | Qt::AlignVCenter);
  if (role != Qt::DisplayRole) return {};
  return section == Name ? "Name" : "Type";
}

Qt::ItemFlags NodeModel::flags(const QModelIndex& index) const {
  const Qt::ItemFlags flags = QAbstractTableModel::flags(index);
  return index.column() == Name ? flags | Qt::ItemIsEditable : flags;
}

bool NodeModel::setData(const QModelIndex& index, const QVariant& value, int role) {
  const std::string name = value.toString().trimmed().toStdString();
  const std::string former = rows_[index.row()]->name();
  if (role != Qt::EditRole || name.empty() || name == former) return false;
  return bool(runLine("rename " + vesk::quoted(former) + " " + vesk::quoted(name)));
}

}  // namespace vesk
