#pragma once

#include <QPlainTextEdit>
#include <functional>
#include <optional>

#include "standalone/widgets/look/Theme.h"

namespace orvuilib {

/// A field over the canvas in which a text is changed where it stands. Return takes it over, and so
/// does going elsewhere in the window; Escape gives it up. With several lines Shift+Return begins a
/// new one.
class InlineEditor final : public QPlainTextEdit {
  Q_OBJECT

 public:
  using Done = std::function<void(const QString&)>;

  /// Where what is changed stands, on the parent; nothing when it is gone.
  using Place = std::function<std::optional<QRect>()>;

  InlineEditor(const Theme& theme, QWidget* parent);

  /// `done` hears of a text that is another one.
  void edit(Place place, const QString& text, bool severalLines, Done done);

  /// Takes its place anew, for the parent looks different now; without one it gives up.
  void follow();

  /// Gives up.
  void cancel();

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  bool event(QEvent* event) override;

  /// In a single line the ends of pasted lines are blanks.
  void insertFromMimeData(const QMimeData* source) override;

 private:
  void commit();
  void takePlace(const QRect& area);

  const Theme& theme_;
  Place place_;
  QString before_;
  bool severalLines_ = false;
  Done done_;
};

}  // namespace orvuilib
