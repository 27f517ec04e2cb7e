#pragma once

#include <QTableView>
#include <functional>

#include "platform/orvUI_1_0/OrvUiApi.h"
#include "standalone/widgets/parameters/info/MetadataModel.h"

namespace orvuilib {

/// Gives a table the height of its lines, up to so many; more are scrolled to.
void fitHeight(QTableView& table, int mostLines);

/// The looks that the tables of the info panel share.
void styleTable(QTableView& table);

/// A table in which metadata are edited. The Delete key removes the current line.
class ORVUI_EXPORT MetadataTable final : public QTableView {
 public:
  explicit MetadataTable(QWidget* parent);

  /// Null shows nothing.
  void showTarget(std::unique_ptr<MetadataTarget> target);

  /// Shows what the graph has now.
  void refresh();

  /// An edit has been made, which the graph may have refused.
  std::function<void()> edited;

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  MetadataModel* model_;
};

}  // namespace orvuilib
