#pragma once

#include "platform/orvUI_1_0/OrvUiApi.h"
#include "standalone/widgets/parameters/rows/RowWidget.h"

class QTableView;
class QToolButton;

namespace orvuilib {

class ArrayModel;

/// How many elements there are, which opens to a table of them.
class ORVUI_EXPORT ArrayRow final : public RowWidget {
 public:
  ArrayRow(const ParameterRow& row, QWidget* parent);

  /// How many lines high an open row is.
  static constexpr int kOpenLines = 8;

  void setOpen(bool open) override;

 protected:
  void showState(const RowState& state) override;
  void placeFields(const QRect& place) override;
  bool isWide() const override { return open_; }

 private:
  void makeTable();
  QToolButton* makeButton(const QString& text, const char* name, const char* tip);
  void refuse(const QString& reason);

  bool open_ = false;
  QToolButton* summary_;
  QToolButton* add_;
  QToolButton* remove_;
  ArrayModel* model_;
  QTableView* table_ = nullptr;
};

}  // namespace orvuilib
