#pragma once

#include <QPlainTextEdit>
#include <functional>

#include "platform/orvUI_1_0/OrvUiApi.h"

namespace orvuilib {

/// A text of several lines. Leaving the field enters it, as does Return with Ctrl; Return alone is
/// a new line.
class ORVUI_EXPORT ParagraphField final : public QPlainTextEdit {
 public:
  explicit ParagraphField(QWidget* parent);

  /// While a user edits the text it is not disturbed.
  void showValue(const QString& text);

  /// Several texts that differ.
  void showMixed();

  /// Called with the text, when it is another than before.
  std::function<void(const QString&)> entered;

 protected:
  void focusOutEvent(QFocusEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  bool isTyped() const { return document()->isModified(); }
  void display();
  void enter();

  QString value_;
  bool mixed_ = false;
};

}  // namespace orvuilib
