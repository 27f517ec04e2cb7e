#include "standalone/widgets/parameters/rows/ArrayModel.h"

#include <QColor>
#include <algorithm>

#include "standalone/graph/types/Components.h"
#include "standalone/graph/types/ValueText.h"
#include "standalone/widgets/colour/ManagedColour.h"
#include "standalone/widgets/parameters/RowState.h"
#include "standalone/widgets/parameters/rows/colourTexts.h"

namespace orvuilib {

using orvlib::PortRef;
using orvlib::ScalarKind;
using orvlib::Value;

namespace {

QStringList namesOf(const orvlib::ValueType& type) {
  QStringList names;
  for (const std::string& name : type.element->components) names.append(toText(name));
  return names.isEmpty() ? QStringList("value") : names;
}

int longest(const std::vector<PortRef>& ports) {
  std::size_t most = 0;
  for (const PortRef& port : ports) most = std::max(most, elementCount(*port));
  return static_cast<int>(most);
}

/// Nothing past the end.
std::optional<Value> componentAt(const PortRef& port, std::size_t place) {
  const Value& all = port->unconnectedValue();
  if (place >= orvlib::componentCount(all)) return std::nullopt;
  return orvlib::componentsOf(all, place, 1);
}

}  // namespace

/// The views keep their places when there are as many elements as before.
void ArrayModel::show(const ParameterRow& row, int decimals) {
  const QStringList names = namesOf(row.type());
  const int elements = longest(row.ports);
  const bool swatches = isColour(*row.type().element);
  const bool sameShape = elements == elements_ && names == names_ && swatches == swatches_;
  if (!sameShape) beginResetModel();
  ports_ = row.ports;
  format_.kind = row.type().scalar;
  format_.decimals = decimals;
  names_ = names;
  elements_ = elements;
  swatches_ = swatches;
  if (!sameShape) {
    endResetModel();
  } else if (elements_ > 0) {
    emit dataChanged(index(0, 0), index(elements_ - 1, columnCount() - 1));
  }
}

int ArrayModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : elements_;
}

int ArrayModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(names_.size()) + (swatches_ ? 1 : 0);
}

int ArrayModel::componentAt(const QModelIndex& index) const {
  const int column = index.column() - (swatches_ ? 1 : 0);
  return index.row() * static_cast<int>(names_.size()) + column;
}

std::optional<QString> ArrayModel::text(int component) const {
  if (ports_.empty()) return std::nullopt;
  const auto place = static_cast<std::size_t>(component);
  const auto first = orvuilib::componentAt(ports_.front(), place);
  const bool differs = std::ranges::any_of(ports_, [&](const PortRef& port) {
    const auto other = orvuilib::componentAt(port, place);
    return !first || !other || !orvlib::sameValue(*first, *other);
  });
  if (differs) return std::nullopt;
  return toText(orvlib::printValue(*first).front());
}

QStringList ArrayModel::elementTexts(int element) const {
  QStringList texts;
  const int width = static_cast<int>(names_.size());
  for (int i = 0; i < width; ++i) texts.append(text(element * width + i).value_or(QString()));
  return texts;
}

QVariant ArrayModel::colourData(int element, int role) const {
  if (role == Qt::ToolTipRole && editable_) return "Double-click or press Space to edit the colour";
  if (role != Qt::DecorationRole) return {};
  const QStringList texts = elementTexts(element);
  return texts.contains(QString()) ? QVariant() : QVariant(toScreen(colourOf(texts)));
}

QVariant ArrayModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid()) return {};
  if (isSwatch(index)) return colourData(index.row(), role);
  if (role == Qt::DisplayRole || role == Qt::EditRole) {
    const auto full = text(componentAt(index));
    if (!full) return role == Qt::EditRole ? QString() : QString(QChar(0x2014));
    return role == Qt::EditRole ? *full : format_.shortened(*full);
  }
  if (role == Qt::TextAlignmentRole && format_.kind != ScalarKind::String) {
    return QVariant(Qt::AlignRight | Qt::AlignVCenter);
  }
  return {};
}

QVariant ArrayModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (role != Qt::DisplayRole) return {};
  if (orientation == Qt::Vertical) return section;
  return names_.value(section - (swatches_ ? 1 : 0));
}

Qt::ItemFlags ArrayModel::flags(const QModelIndex& index) const {
  const Qt::ItemFlags flags = QAbstractTableModel::flags(index);
  return editable_ && !isSwatch(index) ? flags | Qt::ItemIsEditable : flags;
}

bool ArrayModel::setData(const QModelIndex& index, const QVariant& value, int role) {
  if (!index.isValid() || role != Qt::EditRole || !editable_ || isSwatch(index)) return false;
  const int component = componentAt(index);
  const auto former = text(component);
  const QString typed = value.toString();
  // Arrays that differ are edited from an empty field, which is left as it was.
  if (typed == former.value_or(QString())) return false;
  QString reason;
  const auto read =
      format_.kind == ScalarKind::String ? std::optional(typed) : format_.read(typed, reason);
  if (!read) {
    if (refused) refused(reason);
    return false;
  }
  if (read == former) return false;
  if (entered) entered(component, *read);
  return true;
}

}  // namespace orvuilib
