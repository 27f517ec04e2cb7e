#pragma once

#include <QWidget>
#include <functional>
#include <vector>

#include "platform/orvUI_1_0/OrvUiApi.h"
#include "standalone/widgets/parameters/NumberFormat.h"
#include "standalone/widgets/parameters/RowState.h"

namespace orvuilib {

/// A field for each component of a value: numbers, texts, or check boxes. It does not own the
/// fields, which belong to the widget that they are made on.
class ORVUI_EXPORT ComponentFields {
 public:
  /// What a user does to one component.
  struct Edits {
    std::function<void(int, const QString&)> entered;
    std::function<void(int, const QString&)> stepped;
    std::function<void()> stepsEnded;
    std::function<void()> stepsCancelled;
  };

  ComponentFields(const orvlib::ValueType& type, const NumberFormat& format, Edits edits,
                  QWidget* parent);
  ComponentFields(const ComponentFields&) = delete;
  ComponentFields& operator=(const ComponentFields&) = delete;

  void show(const RowState& state);

  /// How numbers are entered from now on.
  void setFormat(const NumberFormat& format);

  /// In lines of so many, over the whole of `place`.
  void place(const QRect& place, int columns, int gap) const;

 private:
  QWidget* makeField(int index, const orvlib::ValueType& type, const NumberFormat& format,
                     QWidget* parent);
  QWidget* makeNumber(int index, const NumberFormat& format, QWidget* parent);
  QWidget* makeText(int index, QWidget* parent);
  QWidget* makeCheck(int index, QWidget* parent);
  void showComponent(std::size_t index, const RowState& state);

  Edits edits_;
  std::vector<QWidget*> fields_;
};

}  // namespace orvuilib
