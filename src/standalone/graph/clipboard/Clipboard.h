#pragma once

#include <string>
#include <string_view>

#include "platform/ORV_1_0/OrvApi.h"

namespace orvlib {

/// A clipboard that a program shares with others. The library owns none: a program installs one.
class ORV_EXPORT SystemClipboard {
 public:
  virtual ~SystemClipboard();

  /// Replaces what is there. False, and nothing changed, when that fails.
  virtual bool setText(const std::string& text) = 0;

  /// UTF-8; empty when there is no text.
  virtual std::string text() const = 0;
};

/// Where copies go and pastes come from: the system's clipboard when there is one, unless the
/// program wants the library's own.
class ORV_EXPORT Clipboard {
 public:
  /// `system` is used until it is replaced and must live as long; null is none.
  static void install(SystemClipboard* system);
  static void setLocal(bool local);

  /// False, and nothing changed, when the system's clipboard refuses.
  static bool setText(std::string text);
  static std::string text();
};

/// While it lives copies go to it and pastes come from it: what the user copied stays on the
/// clipboard. They nest.
class ORV_EXPORT PrivateClipboard {
 public:
  PrivateClipboard();
  ~PrivateClipboard();
  PrivateClipboard(const PrivateClipboard&) = delete;
  PrivateClipboard& operator=(const PrivateClipboard&) = delete;

 private:
  friend class Clipboard;

  PrivateClipboard* outer_;
  std::string text_;
};

}  // namespace orvlib
