#pragma once

#include "platform/orvUI_1_0/OrvUiApi.h"
#include "standalone/widgets/parameters/rows/RowWidget.h"

class QToolButton;

namespace orvuilib {

class ArrayModel;
class ElementTable;

/// How many elements there are, which opens to a table of them. An element that is edited, added,
/// removed or moved leaves all others as they are, in each of the arrays.
class ORVUI_EXPORT ArrayRow final : public RowWidget {
 public:
  ArrayRow(const ParameterRow& row, QWidget* parent);

  /// How many lines high an open row is.
  static constexpr int kOpenLines = 8;

  void setOpen(bool open) override;

 protected:
  void showState(const RowState& state) override;
  void placeFields(const QRect& place) override;
  bool isForReaders() const override { return true; }
  bool isWide() const override { return open_; }

 private:
  QToolButton* makeButton(const QString& text, const char* name, const char* tip);
  void makeTable();
  int current() const;
  void addOne();
  void removeOne();
  void moveOne(int by);

  /// Changes the arrays, and makes that element the current one.
  void changeTo(const RowEdits::Change& change, int element);
  void showElements();
  void pick(int element);
  QString summary(int room) const;

  bool open_ = false;
  QToolButton* summary_;
  QToolButton* up_;
  QToolButton* down_;
  QToolButton* add_;
  QToolButton* remove_;
  ArrayModel* model_;
  ElementTable* table_ = nullptr;
};

}  // namespace orvuilib
