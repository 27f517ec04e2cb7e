#pragma once

#include <QPlainTextEdit>
#include <functional>
#include <vector>

class QCompleter;
class QStringListModel;

namespace vesk {

class CommandRegistry;

/// Where lines are typed. Return runs them, Shift+Return begins another line, Tab completes names
/// of commands and flags, Up and Down recall what ran, Escape empties it. It grows with its text.
class CommandInput final : public QPlainTextEdit {
 public:
  /// `registry` outlives this object.
  explicit CommandInput(const CommandRegistry& registry, QWidget* parent = nullptr);

  /// Called with what was typed: one line or more.
  std::function<void(const QString&)> entered;

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void changeEvent(QEvent* event) override;
  bool focusNextPrevChild(bool next) override;

 private:
  bool handleKey(const QKeyEvent& event);
  void enter();
  bool recall(int step);
  void complete();
  void insertRest(const QString& name);
  void showOffers(const QStringList& names);
  void fitHeight();
  void applyFont();
  QString textBeforeCursor() const;
  QString typedWord() const;

  const CommandRegistry& registry_;
  QCompleter* completer_;
  QStringListModel* offers_;
  std::vector<QString> history_;
  std::size_t recalled_ = 0;  ///< index in the history; its size for what is being typed
  QString draft_;             ///< what was being typed when recalling began
};

}  // namespace vesk
