#include "standalone/widgets/compound/input/Shortcuts.h"

#include <QHash>
#include <QKeySequence>
#include <algorithm>

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
    {Action::ContextMenu, "Editing", "What can be done with it", "Menu Shift+F10"},
    {Action::WalkLeft, "Ports and wires", "Go left: port, wire, next node", "Shift+Left"},
    {Action::WalkRight, "Ports and wires", "Go right: port, wire, next node", "Shift+Right"},
    {Action::WalkUp, "Ports and wires", "To the port or wire above", "Shift+Up"},
    {Action::WalkDown, "Ports and wires", "To the port or wire below", "Shift+Down"},
    {Action::WirePort, "Ports and wires", "Begin a wire at the port, or end it there", "C"},
    {Action::DisconnectPort, "Ports and wires", "Take the wires off the port", "Shift+D"},
    {Action::OpenPort, "Ports and wires", "Show the port's components, or not", "O"},
    {Action::AddInput, "Ports and wires", "Add an input to the compound", "Shift+I"},
    {Action::AddOutput, "Ports and wires", "Add an output to the compound", "Shift+O"},
    {Action::RenamePort, "Ports and wires", "Rename the port", "Shift+F2"},
    {Action::SetPortType, "Ports and wires", "Choose the port's type", "Shift+T"},
    {Action::MovePortUp, "Ports and wires", "Move the port up", "Shift+PgUp"},
    {Action::MovePortDown, "Ports and wires", "Move the port down", "Shift+PgDown"},
    {Action::HidePort, "Ports and wires", "Hide the port", "Shift+H"},
    {Action::ShowPorts, "Ports and wires", "Show all hidden ports", "Ctrl+Shift+H"},
    {Action::DeletePort, "Ports and wires", "Delete the port", "Shift+Del"},
    {Action::ToggleEnabled, "States", "Enable or disable", "E"},
    {Action::ToggleFrozen, "States", "Freeze or thaw", "R"},
    {Action::ToggleBypassed, "States", "Bypass, or do not", "B"},
    {Action::ToggleWatch, "States", "Watch the port or the wire", "W"},
    {Action::NudgeLeft, "Layout", "Move left", "Left"},
    {Action::NudgeRight, "Layout", "Move right", "Right"},
    {Action::NudgeUp, "Layout", "Move up", "Up"},
    {Action::NudgeDown, "Layout", "Move down", "Down"},
    {Action::AlignLeft, "Layout", "Align left edges", "Ctrl+Left"},
    {Action::AlignRight, "Layout", "Align right edges", "Ctrl+Right"},
    {Action::AlignTop, "Layout", "Align upper edges", "Ctrl+Up"},
    {Action::AlignBottom, "Layout", "Align lower edges", "Ctrl+Down"},
    {Action::NarrowNotes, "Layout", "Make notes narrower", "Ctrl+Shift+Left"},
    {Action::WidenNotes, "Layout", "Make notes wider", "Ctrl+Shift+Right"},
    {Action::LowerNotes, "Layout", "Make notes less high", "Ctrl+Shift+Up"},
    {Action::HeightenNotes, "Layout", "Make notes higher", "Ctrl+Shift+Down"},
    {Action::AutoLayout, "Layout", "Lay out the selection, or everything", "L"},
};

constexpr MouseRow kMouseRows[] = {
    {"click", "selects; with Shift in addition, with Ctrl on and off"},
    {"drag over empty space", "selects what it touches, and backdrops it holds"},
    {"drag a node or a note", "moves it; a backdrop with what lies on it"},
    {"drag a free node onto a wire", "puts it into the wire"},
    {"drag from a port", "makes a wire, to a port that is lit or to a node"},
    {"drag a wire into empty space", "opens the menu of what fits, and connects it"},
    {"drag a wire's end off its input", "moves the wire; into empty space it goes"},
    {"drag a wire onto \"+ port\"", "makes a port of that type, connected"},
    {"click on \"+ port\"", "makes a port, of a type to choose"},
    {"drag a port of the boundary", "moves it among its like; beyond the end, to the end"},
    {"drag the corner of a note", "makes it larger or smaller"},
    {"double click on a title or a note", "changes its text in place; a port's too"},
    {"double click on a compound", "goes in"},
    {"double click on a port's dot", "shows its components, or not"},
    {"right click", "the menu of nodes, or of what is there"},
    {"middle, or Alt or Space and left", "pans"},
    {"wheel", "zooms at the pointer"},
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

const ShortcutRow* rowOf(Action action) {
  const auto found = std::ranges::find(kRows, action, &ShortcutRow::action);
  return found == std::end(kRows) ? nullptr : found;
}

}  // namespace

std::span<const ShortcutRow> shortcutTable() { return kRows; }

std::span<const MouseRow> mouseTable() { return kMouseRows; }

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
  const ShortcutRow* row = rowOf(action);
  return row ? keysOf(*row).first() : QString();
}

QString textOf(Action action) {
  const ShortcutRow* row = rowOf(action);
  return row ? QString::fromLatin1(row->text) : QString();
}

}  // namespace orvuilib
