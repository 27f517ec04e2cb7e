#include "standalone/widgets/parameters/info/MetadataModel.h"

#include <utility>

#include "standalone/widgets/parameters/ParameterRow.h"

namespace orvuilib {

using orvlib::Properties;
using orvlib::Property;

void MetadataModel::show(std::unique_ptr<MetadataTarget> target) {
  beginResetModel();
  target_ = std::move(target);
  pending_.clear();
  lines_ = read();
  editable_ = isEditableNow();
  endResetModel();
}

std::vector<MetadataModel::Line> MetadataModel::read() const {
  std::vector<Line> lines;
  if (!target_) return lines;
  for (const Property& property : target_->metadata().all()) {
    const bool isOnly = property.values.size() == 1;
    for (std::size_t i = 0; i < property.values.size(); ++i) {
      lines.push_back({toText(property.key), toText(property.values[i]), i, isOnly});
    }
  }
  return lines;
}

/// As long as there are as many lines, what is selected and edited stays.
void MetadataModel::refresh() {
  std::vector<Line> now = read();
  const bool editable = isEditableNow();
  if (now == lines_ && editable == editable_) return;
  if (now.size() == lines_.size() && editable == editable_) {
    lines_ = std::move(now);
    emit dataChanged(index(0, 0), index(rowCount() - 1, kColumns - 1));
    return;
  }
  beginResetModel();
  lines_ = std::move(now);
  editable_ = editable;
  endResetModel();
}

int MetadataModel::rowCount(const QModelIndex& parent) const {
  if (parent.isValid()) return 0;
  return static_cast<int>(lines_.size()) + (editable_ ? 1 : 0);
}

int MetadataModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(kColumns);
}

QVariant MetadataModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid()) return {};
  const bool shows = role == Qt::DisplayRole || role == Qt::EditRole;
  if (isNewLine(index.row())) return newLineData(index.column(), role);
  const Line& line = lines_[static_cast<std::size_t>(index.row())];
  const QString& text = index.column() == kKey ? line.key : line.value;
  return shows || role == Qt::ToolTipRole ? QVariant(text) : QVariant();
}

QVariant MetadataModel::newLineData(int column, int role) const {
  if (role == Qt::ToolTipRole) {
    const QString hint = target_->hint();
    return "Enter a new key" + (hint.isEmpty() ? hint : "\n" + hint);
  }
  const bool isKey = column == kKey;
  if (!pending_.isEmpty() && isKey && (role == Qt::DisplayRole || role == Qt::EditRole)) {
    return pending_;
  }
  return role == Qt::DisplayRole && isKey ? QVariant("+") : QVariant();
}

QVariant MetadataModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (role != Qt::DisplayRole || orientation != Qt::Horizontal) return {};
  return section == kKey ? "Key" : "Value";
}

Qt::ItemFlags MetadataModel::flags(const QModelIndex& index) const {
  const Qt::ItemFlags flags = QAbstractTableModel::flags(index);
  if (!index.isValid() || !editable_) return flags;
  const bool isKey = index.column() == kKey;
  if (isNewLine(index.row())) {
    return isKey || !pending_.isEmpty() ? flags | Qt::ItemIsEditable : flags;
  }
  return !isKey || target_->isOpen() ? flags | Qt::ItemIsEditable : flags;
}

bool MetadataModel::setData(const QModelIndex& index, const QVariant& value, int role) {
  if (!index.isValid() || role != Qt::EditRole || !isEditableNow()) return false;
  const QString text = value.toString();
  if (isNewLine(index.row())) return index.column() == kKey ? addKey(text) : addPending(text);
  const Line line = lines_[static_cast<std::size_t>(index.row())];
  return index.column() == kKey ? renameKey(line, text) : changeValue(line, text);
}

/// A key that is there already gets one more value.
bool MetadataModel::addKey(const QString& key) {
  if (!target_->takesEmpty()) pending_.clear();
  if (key.isEmpty()) return false;
  if (!target_->metadata().find(key.toStdString())) {
    if (!target_->takesEmpty()) {
      pending_ = key;
      emit dataChanged(index(rowCount() - 1, kKey), index(rowCount() - 1, kValue));
      return true;
    }
    target_->set(key, QString());
  } else if (target_->isOpen()) {
    target_->add(key, QString());
  } else {
    return refuse(QString("%1 is there already").arg(key));
  }
  return tellEdited();
}

bool MetadataModel::addPending(const QString& value) {
  if (value.isEmpty()) return false;
  target_->set(std::exchange(pending_, QString()), value);
  return tellEdited();
}

/// The key keeps its values and its place.
bool MetadataModel::renameKey(const Line& line, const QString& key) {
  if (key == line.key) return false;
  if (key.isEmpty()) return refuse("A key cannot be empty");
  if (target_->metadata().find(key.toStdString())) {
    return refuse(QString("%1 is there already").arg(key));
  }
  Properties changed;
  for (const Property& property : target_->metadata().all()) {
    const bool isMeant = toText(property.key) == line.key;
    changed.set(isMeant ? key.toStdString() : property.key, property.values);
  }
  target_->replace(changed);
  return tellEdited();
}

bool MetadataModel::changeValue(const Line& line, const QString& value) {
  if (value == line.value) return false;
  const auto* values = target_->metadata().find(line.key.toStdString());
  if (!values || line.place >= values->size()) return false;
  if (line.isOnly) {
    target_->set(line.key, value);
    return tellEdited();
  }
  if (!target_->isOpen()) return refuse("This key has several values");
  std::vector<std::string> changedValues = *values;
  changedValues[line.place] = value.toStdString();
  Properties changed = target_->metadata();
  changed.set(line.key.toStdString(), std::move(changedValues));
  target_->replace(changed);
  return tellEdited();
}

bool MetadataModel::canRemove(int line) const {
  return isEditableNow() && target_->canClear() && line >= 0 &&
         line < static_cast<int>(lines_.size());
}

void MetadataModel::remove(int index) {
  if (!canRemove(index)) return;
  const Line line = lines_[static_cast<std::size_t>(index)];
  if (line.isOnly || !target_->isOpen()) {
    target_->clear(line.key);
  } else {
    target_->remove(line.key, line.value);
  }
  tellEdited();
}

bool MetadataModel::refuse(const QString& reason) {
  if (refused) refused(reason);
  return false;
}

bool MetadataModel::tellEdited() {
  if (read() == lines_) refuse("The graph refused the edit");
  if (edited) edited();
  return true;
}

}  // namespace orvuilib
