#pragma once

#include <QWidget>
#include <functional>

#include "platform/orvUI_1_0/OrvUiApi.h"
#include "standalone/graph/model/PortObject.h"

class QLabel;
class QListView;
class QStringListModel;
class QToolButton;
class QVBoxLayout;

namespace orvuilib {

class MetadataTable;
class Plot;

/// The watch point of a port: its state, what it recorded, its metadata, and a button that removes
/// it.
class ORVUI_EXPORT WatchView final : public QWidget {
 public:
  WatchView(orvlib::PortRef port, QWidget* parent);

  const orvlib::PortObject& port() const { return *port_; }

  /// Shows what the graph has now.
  void refresh();

  /// Shows what came to the records since it was last asked.
  void followRecords();

  /// An edit has been made, which the graph may have refused.
  std::function<void()> edited;

  /// Called with the reason why what a user did had no effect.
  std::function<void(const QString&)> refused;

 private:
  void makeHead();
  void makeBody();
  void remove();
  void showRecords();

  /// Which records are shown: how many, and of which evaluation the last is.
  using Shown = std::pair<std::size_t, std::uint64_t>;
  Shown recordsNow() const;

  orvlib::PortRef port_;
  QLabel* title_;
  QLabel* latest_;
  Plot* plot_;
  QListView* list_;
  QStringListModel* model_;
  MetadataTable* metadata_;
  QToolButton* adder_;
  QToolButton* remover_;
  Shown shown_;
};

}  // namespace orvuilib
