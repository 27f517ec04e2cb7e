#pragma once

#include "platform/orvUI_1_0/OrvUiApi.h"
#include "standalone/widgets/parameters/NumberFormat.h"
#include "standalone/widgets/parameters/fields/EntryField.h"

namespace orvuilib {

/// A number. The arrow keys step it, ten times as far with shift and a tenth as far with control;
/// the steps of one key press are shown at once and end together.
class ORVUI_EXPORT NumberField final : public EntryField {
 public:
  NumberField(const NumberFormat& format, QWidget* parent);

  void setFormat(const NumberFormat& format) { format_ = format; }
  const NumberFormat& format() const { return format_; }

  /// A value on its way, as a key steps it.
  std::function<void(const QString&)> stepped;

  /// The key was released, so that the last value stays.
  std::function<void()> stepsEnded;

  /// Escape was pressed on the way: all is to be as before.
  std::function<void()> stepsCancelled;

  bool isStepping() const { return stepping_; }

 protected:
  std::optional<QString> read(const QString& text, QString& reason) const override {
    return format_.read(text, reason);
  }
  QString shortened(const QString& full) const override { return format_.shortened(full); }
  void keyPressEvent(QKeyEvent* event) override;
  void keyReleaseEvent(QKeyEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;

 private:
  void step(int direction, Qt::KeyboardModifiers modifiers);
  void endSteps();

  NumberFormat format_;
  bool stepping_ = false;
};

}  // namespace orvuilib
