#include "standalone/widgets/parameters/rows/ArrayModel.h"

#include "standalone/graph/types/Components.h"
#include "standalone/graph/types/ValueText.h"

namespace orvuilib {

using orvlib::ScalarKind;
using orvlib::Value;
using orvlib::ValueType;

namespace {

QString zeroText(ScalarKind kind) {
  if (kind == ScalarKind::String) return {};
  return kind == ScalarKind::Boolean ? "false" : "0";
}

}  // namespace

/// The views keep their places when there are as many elements as before.
void ArrayModel::show(const ValueType& type, const Value& value, int decimals) {
  const bool sameShape = type.componentCount() == width() && type.scalar == type_.scalar &&
                         orvlib::componentCount(value) == orvlib::componentCount(value_);
  if (sameShape && orvlib::sameValue(value, value_) && decimals == format_.decimals) return;
  if (!sameShape) beginResetModel();
  type_ = type;
  value_ = value;
  format_.kind = type.scalar;
  format_.decimals = decimals;
  if (sameShape) {
    emit dataChanged(index(0, 0), index(elements() - 1, columnCount() - 1));
  } else {
    endResetModel();
  }
}

int ArrayModel::elements() const {
  return static_cast<int>(orvlib::componentCount(value_) / width());
}

int ArrayModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : elements();
}

int ArrayModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(width());
}

QString ArrayModel::text(int row, int column) const {
  const std::size_t at = static_cast<std::size_t>(row) * width() + static_cast<std::size_t>(column);
  return QString::fromStdString(orvlib::printValue(orvlib::componentsOf(value_, at, 1)).front());
}

QVariant ArrayModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid()) return {};
  if (role == Qt::DisplayRole) return format_.shortened(text(index.row(), index.column()));
  if (role == Qt::EditRole) return text(index.row(), index.column());
  if (role == Qt::TextAlignmentRole && type_.scalar != ScalarKind::String) {
    return QVariant(Qt::AlignRight | Qt::AlignVCenter);
  }
  return {};
}

QVariant ArrayModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (role != Qt::DisplayRole) return {};
  if (orientation == Qt::Vertical) return section;
  const auto& names = type_.element ? type_.element->components : type_.components;
  const auto at = static_cast<std::size_t>(section);
  return at < names.size() ? QString::fromStdString(names[at]) : QString("value");
}

Qt::ItemFlags ArrayModel::flags(const QModelIndex& index) const {
  const Qt::ItemFlags flags = QAbstractTableModel::flags(index);
  return editable_ ? flags | Qt::ItemIsEditable : flags;
}

QStringList ArrayModel::allTexts() const {
  QStringList texts;
  for (const std::string& text : orvlib::printValue(value_)) {
    texts.append(QString::fromStdString(text));
  }
  return texts;
}

bool ArrayModel::setData(const QModelIndex& index, const QVariant& value, int role) {
  if (!index.isValid() || role != Qt::EditRole || !editable_) return false;
  QString reason;
  const QString entered = value.toString();
  const auto read =
      type_.scalar == ScalarKind::String ? std::optional(entered) : format_.read(entered, reason);
  if (!read) {
    if (refused) refused(reason);
    return false;
  }
  if (*read == text(index.row(), index.column())) return false;
  QStringList texts = allTexts();
  texts[index.row() * static_cast<int>(width()) + index.column()] = *read;
  if (asked) asked(texts);
  return true;
}

void ArrayModel::insertAfter(int element) {
  if (!asked || element < -1 || element >= elements()) return;
  QStringList texts = allTexts();
  const qsizetype at = (element + 1) * static_cast<qsizetype>(width());
  for (std::size_t i = 0; i < width(); ++i) texts.insert(at, zeroText(type_.scalar));
  asked(texts);
}

void ArrayModel::remove(int element) {
  if (!asked || element < 0 || element >= elements()) return;
  QStringList texts = allTexts();
  const auto first = texts.begin() + element * static_cast<qsizetype>(width());
  texts.erase(first, first + static_cast<qsizetype>(width()));
  asked(texts);
}

}  // namespace orvuilib
