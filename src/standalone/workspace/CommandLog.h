#pragma once

#include <QPlainTextEdit>
#include <string_view>
#include <utility>
#include <vector>

#include "standalone/workspace/Coalesced.h"

namespace vesk {

/// What a text in the log is; each kind has its mark and its colour.
enum class LogKind { Echo, Result, Print, Warning, Error };

/// What ran and what came of it, the newest last, in the marks of a transcript. Texts are shown
/// together, when control is back at the event loop; the oldest lines go after 10,000, and a line
/// is cut after 2,000 characters.
class CommandLog final : public QPlainTextEdit {
 public:
  explicit CommandLog(QWidget* parent = nullptr);

  void add(LogKind kind, std::string_view text);

  /// Forgets all.
  void clearLog();

 protected:
  void changeEvent(QEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;

 private:
  void applyFont();
  int lineHeight() const;
  void fitMargins();
  void flush();
  bool isAtEnd() const;

  std::vector<std::pair<LogKind, QString>> waiting_;  ///< lines
  Coalesced flush_;
};

}  // namespace vesk
