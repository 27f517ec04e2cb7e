#pragma once

#include <QString>
#include <QStringList>
#include <optional>
#include <span>

#include "platform/orvUI_1_0/OrvUiApi.h"

namespace orvuilib {

/// What a key does.
enum class Action {
  FitAll,
  FitSelection,
  DiveIn,
  DiveOut,
  Back,
  Forward,
  ZoomIn,
  ZoomOut,
  Find,
  FindNext,
  SelectAll,
  SelectNone,
  InvertSelection,
  SelectUpstream,
  SelectDownstream,
  AddNode,
  Rename,
  Remove,
  RemoveAndHeal,
  Disconnect,
  Cut,
  Copy,
  Paste,
  Duplicate,
  CopyAsScript,
  Group,
  Explode,
  AddBackdrop,
  AddNote,
  Undo,
  Redo,
  ToggleEnabled,
  ToggleFrozen,
  ToggleBypassed,
  ToggleWatch,
  NudgeLeft,
  NudgeRight,
  NudgeUp,
  NudgeDown,
  AlignLeft,
  AlignRight,
  AlignTop,
  AlignBottom,
  NarrowNotes,
  WidenNotes,
  LowerNotes,
  HeightenNotes,
  AutoLayout,
  WalkLeft,
  WalkRight,
  WalkUp,
  WalkDown,
  WirePort,
  DisconnectPort,
  AddInput,
  AddOutput,
  RenamePort,
  SetPortType,
  MovePortUp,
  MovePortDown,
  HidePort,
  ShowPorts,
  DeletePort,
  OpenPort,
  ContextMenu,
  ToggleGrid,
  ToggleSnap,
  ToggleValues,
  NextWireStyle,
  Parameters,
  Help,
};

/// One line of the table of keys. Keys are as `QKeySequence` writes them.
struct ShortcutRow {
  Action action;
  const char* group;
  const char* text;
  const char* keys;  ///< several are parted by blanks
};

/// All keys, in the order in which they are shown: the editor obeys this table, the help shows it,
/// and docs/editors.md repeats it.
ORVUI_EXPORT std::span<const ShortcutRow> shortcutTable();

/// Nothing for a key that means nothing. Of a key that is typed with Shift, such as "?", Shift is
/// not asked for.
ORVUI_EXPORT std::optional<Action> actionFor(int key, Qt::KeyboardModifiers modifiers);

/// One line of the table of what the mouse does.
struct MouseRow {
  const char* gesture;
  const char* text;
};

/// What the mouse does, in the order in which it is shown; docs/editors.md repeats it too.
ORVUI_EXPORT std::span<const MouseRow> mouseTable();

/// The keys of a row as a user reads them.
ORVUI_EXPORT QStringList keysOf(const ShortcutRow& row);

/// The first key of an action; empty without one.
QString keyTextOf(Action action);

/// What an action is called; empty for one that is not in the table.
QString textOf(Action action);

}  // namespace orvuilib
