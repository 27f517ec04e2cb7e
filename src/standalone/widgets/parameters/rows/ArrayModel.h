#pragma once

#include <QAbstractTableModel>
#include <functional>

#include "platform/orvUI_1_0/OrvUiApi.h"
#include "standalone/widgets/parameters/NumberFormat.h"
#include "standalone/widgets/parameters/ParameterRow.h"

namespace orvuilib {

/// The elements of the arrays of a row: one a line, with a column for each of its components, and
/// for colours a swatch ahead of them. It has as many lines as the longest array; what differs
/// between the arrays is shown as such. It reads what is asked for alone, and changes nothing.
class ORVUI_EXPORT ArrayModel final : public QAbstractTableModel {
 public:
  explicit ArrayModel(QObject* parent) : QAbstractTableModel(parent) {}

  /// Shows what the graph has now. The row is one of arrays.
  void show(const ParameterRow& row, int decimals);

  /// Whether cells can be edited.
  void setEditable(bool editable) { editable_ = editable; }

  /// Called with a component, counted through all elements, and the text that a user entered.
  std::function<void(int, const QString&)> entered;

  /// Called with the reason why what was entered is no value.
  std::function<void(const QString&)> refused;

  bool hasSwatches() const { return swatches_; }

  /// One text a component; an empty one where the arrays differ.
  QStringList elementTexts(int element) const;

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
  Qt::ItemFlags flags(const QModelIndex& index) const override;
  bool setData(const QModelIndex& index, const QVariant& value, int role) override;

 private:
  int componentAt(const QModelIndex& index) const;
  bool isSwatch(const QModelIndex& index) const { return swatches_ && index.column() == 0; }

  /// Nothing where the arrays differ.
  std::optional<QString> text(int component) const;
  QVariant colourData(int element, int role) const;

  std::vector<orvlib::PortRef> ports_;
  NumberFormat format_;
  QStringList names_;
  int elements_ = 0;
  bool swatches_ = false;
  bool editable_ = false;
};

}  // namespace orvuilib
