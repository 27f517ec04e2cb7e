#pragma once

#include <QPlainTextEdit>
#include <functional>

#include "standalone/widgets/look/Theme.h"

namespace orvuilib {

/// A field over the canvas in which a text is changed where it stands. Return and losing the focus
/// take it over, Escape gives it up. With several lines Shift+Return begins a new one.
class InlineEditor final : public QPlainTextEdit {
  Q_OBJECT

 public:
  using Done = std::function<void(const QString&)>;

  InlineEditor(const Theme& theme, QWidget* parent);

  /// `done` hears of a text that is another one. `area` is of the parent.
  void edit(const QRect& area, const QString& text, bool severalLines, Done done);

  /// Gives up.
  void cancel();

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  bool event(QEvent* event) override;

 private:
  void commit();

  const Theme& theme_;
  QString before_;
  bool severalLines_ = false;
  Done done_;
};

}  // namespace orvuilib
