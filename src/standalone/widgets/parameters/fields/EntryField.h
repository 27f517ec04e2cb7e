#pragma once

#include <QLineEdit>
#include <QTimer>
#include <functional>
#include <optional>

#include "platform/orvUI_1_0/OrvUiApi.h"

namespace orvuilib {

/// A line of text that stands for a value. What a user enters is read first; what cannot be read is
/// refused: the former value comes back, with a mark that goes after a while.
class ORVUI_EXPORT EntryField : public QLineEdit {
 public:
  explicit EntryField(QWidget* parent);

  /// The value in full. While a user edits the text it is not disturbed.
  void showValue(const QString& full);

  /// Several values that differ.
  void showMixed();
  bool isMixed() const { return mixed_; }
  const QString& value() const { return full_; }

  /// Called with what was read, when it is another value than before.
  std::function<void(const QString&)> entered;

  /// Enters what is in the field, as the Return key does.
  void enter();

  /// A word that stands faintly at the left, where there is room, such as the name of a component.
  void setCaption(const QString& caption);

  bool isRefused() const { return mark_.isActive(); }

 protected:
  /// The value that a text means; nothing, with a reason for the user, when it means none.
  virtual std::optional<QString> read(const QString& text, QString& reason) const = 0;

  /// What is shown while the field is not edited.
  virtual QString shortened(const QString& full) const { return full; }

  /// Takes back what is being edited.
  void revert();
  void refuse(const QString& reason);

  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  void display();
  bool hasRoomForCaption() const;

  QString full_;
  QString caption_;
  bool mixed_ = false;
  QTimer mark_;
};

}  // namespace orvuilib
