#pragma once

#include <QAbstractTableModel>
#include <QPixmap>
#include <functional>

#include "platform/orvUI_1_0/OrvUiApi.h"
#include "standalone/graph/model/NodeObject.h"

namespace orvuilib {

/// The ports of a node, inputs first, with what they have or get. A check box tells which are
/// watched; clicking it creates or removes the watch point.
class ORVUI_EXPORT PortsModel final : public QAbstractTableModel {
 public:
  enum Column { kWatch, kName, kType, kValue, kColumns };

  explicit PortsModel(QObject* parent) : QAbstractTableModel(parent) {}

  /// Null shows nothing.
  void show(const orvlib::NodeRef& node);

  /// Shows what the graph has now.
  void refresh();

  /// The ports with watch points, those of inner faces of a compound's outputs included.
  std::vector<orvlib::PortRef> watchedPorts() const;

  /// The port of a line; null when there is none.
  orvlib::PortRef port(int line) const;

  /// Heads the column of the boxes.
  void setWatchSign(const QPixmap& sign) { watchSign_ = sign; }

  /// An edit has been made, which the graph may have refused.
  std::function<void()> edited;

  /// Called with the reason why what a user did had no effect.
  std::function<void(const QString&)> refused;

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
  Qt::ItemFlags flags(const QModelIndex& index) const override;
  bool setData(const QModelIndex& index, const QVariant& value, int role) override;

 private:
  std::vector<orvlib::PortRef> read() const;
  QString text(orvlib::PortObject& port, int column) const;
  QString tip(const orvlib::PortObject& port) const;

  QPixmap watchSign_;
  orvlib::NodeRef node_;
  std::vector<orvlib::PortRef> ports_;
};

}  // namespace orvuilib
