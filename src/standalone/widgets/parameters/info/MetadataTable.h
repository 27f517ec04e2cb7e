#pragma once

#include <QTableView>
#include <functional>

#include "platform/orvUI_1_0/OrvUiApi.h"
#include "standalone/widgets/parameters/info/MetadataModel.h"

namespace orvuilib {

/// Gives a table the height of its lines.
void fitHeight(QTableView& table);

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

  /// Called with the reason why what a user did had no effect.
  std::function<void(const QString&)> refused;

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  MetadataModel* model_;
};

}  // namespace orvuilib
