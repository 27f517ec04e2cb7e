#pragma once

#include <QWidget>
#include <functional>

#include "platform/orvUI_1_0/OrvUiApi.h"
#include "standalone/graph/model/PortObject.h"

class QLabel;
class QListView;
class QStringListModel;

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

  /// An edit has been made, which the graph may have refused.
  std::function<void()> edited;

 private:
  void remove();

  orvlib::PortRef port_;
  QLabel* title_;
  QLabel* latest_;
  Plot* plot_;
  QListView* list_;
  QStringListModel* model_;
  MetadataTable* metadata_;
};

}  // namespace orvuilib
