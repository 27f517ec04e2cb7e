#pragma once

#include <QTableView>
#include <functional>

#include "platform/orvUI_1_0/OrvUiApi.h"

namespace orvuilib {

class ArrayModel;

/// The table of an array's elements. Keys add, remove and move elements, and open the colour of
/// one.
class ORVUI_EXPORT ElementTable final : public QTableView {
 public:
  ElementTable(ArrayModel& model, QWidget* parent);

  /// What a key asks for of the current element.
  std::function<void()> addAsked;
  std::function<void()> removeAsked;
  std::function<void(int by)> moveAsked;

  /// The colour of that element shall be edited.
  std::function<void(int)> colourAsked;

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  bool takeKey(const QKeyEvent& event);
  void fitColumns();

  ArrayModel& model_;
};

}  // namespace orvuilib
