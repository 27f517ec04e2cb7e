#pragma once

#include "platform/OpenVesk/KCommandResult.h"
#include "platform/OpenVesk/KSelectionList.h"
#include "platform/OpenVesk/KString.h"

VESK_API_OPEN

/// Services of the host.
///
/// `displayEnabled` lets the line be shown wherever the host shows lines that ran; `undoEnabled`
/// lets its edits enter the undo queue.
class VESK_EXPORT KGlobal {
 public:
  /// Runs a line at once, on the calling thread. The status is that of the first statement that
  /// failed, else success; the result is that of the last statement that ran.
  static KStatus executeCommand(const KString& line, bool displayEnabled, bool undoEnabled);
  static KStatus executeCommand(const KString& line, KCommandResult& result, bool displayEnabled,
                                bool undoEnabled);

  /// For a line that gives an integer; `StatusFailure` when it ran well and gave none.
  static KStatus executeCommand(const KString& line, int& result, bool displayEnabled,
                                bool undoEnabled);

  /// Runs the line, with undo, when the host is next idle.
  static KStatus executeCommandOnIdle(const KString& line, bool displayEnabled);

  /// Show a message to the user; the running command goes on.
  static void displayError(const KString& message);
  static void displayWarning(const KString& message);

  static bool isUndoing();
  static bool isRedoing();

  /// Adds the scene object of that name to the list. `StatusFailure` when there is none.
  static KStatus getSelectionListByName(const KString& name, KSelectionList& list);
};

VESK_API_CLOSE
