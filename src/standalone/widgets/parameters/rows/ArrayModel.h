#pragma once

#include <QAbstractTableModel>
#include <functional>

#include "platform/orvUI_1_0/OrvUiApi.h"
#include "standalone/graph/types/ValueType.h"
#include "standalone/widgets/parameters/NumberFormat.h"

namespace orvuilib {

/// The elements of an array: one a line, with a column for each of its components. It changes
/// nothing: what a user edits is asked for.
class ORVUI_EXPORT ArrayModel final : public QAbstractTableModel {
 public:
  explicit ArrayModel(QObject* parent) : QAbstractTableModel(parent) {}

  /// The type is an array's, and the value one of it.
  void show(const orvlib::ValueType& type, const orvlib::Value& value, int decimals);

  /// Whether cells can be edited.
  void setEditable(bool editable) { editable_ = editable; }

  /// Called with the whole array as it shall become, one text a component.
  std::function<void(const QStringList&)> asked;

  /// Called with the reason why what was entered is no value.
  std::function<void(const QString&)> refused;

  /// Ask for an element more, of zeros or empty texts, after that one; and for one less. Nothing
  /// happens for an element that is not there.
  void insertAfter(int element);
  void remove(int element);

  int elements() const;

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
  Qt::ItemFlags flags(const QModelIndex& index) const override;
  bool setData(const QModelIndex& index, const QVariant& value, int role) override;

 private:
  std::size_t width() const { return type_.componentCount(); }
  QString text(int row, int column) const;
  QStringList allTexts() const;

  orvlib::ValueType type_;
  orvlib::Value value_;
  NumberFormat format_;
  bool editable_ = false;
};

}  // namespace orvuilib
