#include "standalone/widgets/compound/input/Shortcuts.h"

#include <QHash>
#include <QKeySequence>

namespace orvuilib {
namespace {

constexpr ShortcutRow kRows[] = {
    {Action::FitAll, "View", "Show everything", "A Home"},
    {Action::FitSelection, "View", "Show the selection", "F"},
    {Action::DiveIn, "View", "Go into the selected compound", "Return Enter"},
    {Action::DiveOut, "View", "Go out of the compound", "U Backspace"},
    {Action::Back, "View", "Go back", "Alt+Left"},
    {Action::Forward, "View", "Go forward again", "Alt+Right"},
    {Action::ZoomIn, "View", "Zoom in", "+ ="},
    {Action::ZoomOut, "View", "Zoom out", "-"},
    {Action::Find, "View", "Find by name, type or value", "Ctrl+F"},
    {Action::FindNext, "View", "Go to the next that was found", "F3"},
    {Action::ToggleGrid, "View", "Show or hide the grid", "G"},
    {Action::ToggleSnap, "View", "Keep to the grid, or do not", "Shift+G"},
    {Action::ToggleValues, "View", "Show or hide values on wires", "V"},
    {Action::NextWireStyle, "View", "Curved, straight or angled wires", "Shift+W"},
    {Action::Parameters, "View", "Open the parameter editor", "P"},
    {Action::Help, "View", "Show these keys", "? F1"},
    {Action::SelectAll, "Selection", "Select everything", "Ctrl+A"},
    {Action::SelectNone, "Selection", "Select nothing, or give up", "Esc"},
    {Action::InvertSelection, "Selection", "Select what is not selected", "Ctrl+I"},
    {Action::SelectUpstream, "Selection", "Add what leads to the selection", "["},
    {Action::SelectDownstream, "Selection", "Add what the selection leads to", "]"},
    {Action::AddNode, "Editing", "Add a node", "Tab"},
    {Action::Rename, "Editing", "Rename", "F2"},
    {Action::Remove, "Editing", "Remove", "Del"},
    {Action::RemoveAndHeal, "Editing", "Remove and connect what is left", "Alt+Del"},
    {Action::Disconnect, "Editing", "Take all wires off", "D"},
    {Action::Cut, "Editing", "Cut", "Ctrl+X"},
    {Action::Copy, "Editing", "Copy", "Ctrl+C"},
    {Action::Paste, "Editing", "Paste at the pointer", "Ctrl+V"},
    {Action::Duplicate, "Editing", "Duplicate", "Ctrl+D"},
    {Action::CopyAsScript, "Editing", "Copy as script lines", "Ctrl+Shift+C"},
    {Action::Group, "Editing", "Group into a compound", "Ctrl+G"},
    {Action::Explode, "Editing", "Explode compounds", "Ctrl+Shift+G"},
    {Action::AddBackdrop, "Editing", "Backdrop behind the selection", "Shift+B"},
    {Action::AddNote, "Editing", "Add a sticky note", "Shift+N"},
    {Action::Undo, "Editing", "Undo", "Ctrl+Z"},
    {Action::Redo, "Editing", "Redo", "Ctrl+Shift+Z Ctrl+Y"},
    {Action::ToggleEnabled, "States", "Enable or disable", "E"},
    {Action::ToggleFrozen, "States", "Freeze or thaw", "R"},
    {Action::ToggleBypassed, "States", "Bypass, or do not", "B"},
    {Action::ToggleWatch, "States", "Watch what is pointed at", "W"},
    {Action::NudgeLeft, "Layout", "Move left", "Left"},
    {Action::NudgeRight, "Layout", "Move right", "Right"},
    {Action::NudgeUp, "Layout", "Move up", "Up"},
    {Action::NudgeDown, "Layout", "Move down", "Down"},
    {Action::AlignLeft, "Layout", "Align left edges", "Ctrl+Left"},
    {Action::AlignRight, "Layout", "Align right edges", "Ctrl+Right"},
    {Action::AlignTop, "Layout", "Align upper edges", "Ctrl+Up"},
    {Action::AlignBottom, "Layout", "Align lower edges", "Ctrl+Down"},
    {Action::AutoLayout, "Layout", "Lay out the selection, or everything", "L"},
};

constexpr int kShiftedKeys[] = {Qt::Key_Question, Qt::Key_Plus, Qt::Key_BracketLeft,
                                Qt::Key_BracketRight};

int combined(int key, Qt::KeyboardModifiers modifiers) {
  constexpr auto kKnown =
      Qt::ShiftModifier | Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;
  modifiers &= kKnown;
  for (const int shifted : kShiftedKeys) {
    if (key == shifted) modifiers &= ~Qt::KeyboardModifiers(Qt::ShiftModifier);
  }
  return QKeyCombination(modifiers, static_cast<Qt::Key>(key)).toCombined();
}

QHash<int, Action> makeIndex() {
  QHash<int, Action> index;
  for (const ShortcutRow& row : kRows) {
    for (const QString& text : QString::fromLatin1(row.keys).split(QLatin1Char(' '))) {
      const QKeyCombination keys = QKeySequence(text, QKeySequence::PortableText)[0];
      index.insert(combined(keys.key(), keys.keyboardModifiers()), row.action);
    }
  }
  return index;
}

}  // namespace

std::span<const ShortcutRow> shortcutTable() { return kRows; }

std::optional<Action> actionFor(int key, Qt::KeyboardModifiers modifiers) {
  static const QHash<int, Action> index = makeIndex();
  const auto found = index.find(combined(key, modifiers));
  if (found == index.end()) return {};
  return *found;
}

QStringList keysOf(const ShortcutRow& row) {
  return QString::fromLatin1(row.keys).split(QLatin1Char(' '));
}

QString keyTextOf(Action action) {
  for (const ShortcutRow& row : kRows) {
    if (row.action == action) return keysOf(row).first();
  }
  return {};
}

}  // namespace orvuilib
