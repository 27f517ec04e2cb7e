#pragma once

#include <QAbstractTableModel>
#include <functional>
#include <memory>

#include "platform/orvUI_1_0/OrvUiApi.h"
#include "standalone/widgets/parameters/info/MetadataTarget.h"

namespace orvuilib {

/// Metadata as a table: a line for each value, with its key, and below them an empty line in which
/// a user enters a new key. What is edited goes through the target.
class ORVUI_EXPORT MetadataModel final : public QAbstractTableModel {
 public:
  enum Column { kKey, kValue, kColumns };

  explicit MetadataModel(QObject* parent) : QAbstractTableModel(parent) {}

  /// Null shows nothing.
  void show(std::unique_ptr<MetadataTarget> target);

  /// Shows what the graph has now.
  void refresh();

  /// Removes the value of a line, and with its last value the key. Nothing happens when that cannot
  /// be done.
  void remove(int line);
  bool canRemove(int line) const;

  /// An edit has been made, which the graph may have refused.
  std::function<void()> edited;

  /// Called with the reason why what was entered does not fit.
  std::function<void(const QString&)> refused;

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
  Qt::ItemFlags flags(const QModelIndex& index) const override;
  bool setData(const QModelIndex& index, const QVariant& value, int role) override;

 private:
  struct Line {
    QString key;
    QString value;

    /// Its place among the values of the key.
    std::size_t place;
    bool isOnly;

    bool operator==(const Line&) const = default;
  };

  std::vector<Line> read() const;
  bool isEditableNow() const { return target_ && target_->isEditable(); }
  bool isNewLine(int line) const { return line == static_cast<int>(lines_.size()); }
  bool addKey(const QString& key);
  bool addPending(const QString& value);
  bool renameKey(const Line& line, const QString& key);
  bool changeValue(const Line& line, const QString& value);
  bool refuse(const QString& reason);
  bool tellEdited();
  QVariant newLineData(int column, int role) const;

  /// A key that was entered and waits for its value.
  QString pending_;
  std::unique_ptr<MetadataTarget> target_;
  std::vector<Line> lines_;
  bool editable_ = false;
};

}  // namespace orvuilib
