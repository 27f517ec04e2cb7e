// The clipboard and change brackets.

#include "hook/Target.h"
#include "hook/execution.h"
#include "hook/orvVeskCommandHook.h"

using orvUI_v1::EditSelection;

/// Through the interface, so that whoever takes over one of the edits takes it over here too.
bool orvVeskCommandHook::cutSelection(const EditSelection& selection) {
  CommandHook& hook = *this;
  if (!hook.copySelection(selection)) return false;
  for (const NodeHandle& node : *selection.nodes) hook.removeNode(node);
  for (const auto& annotation : *selection.annotations) {
    hook.editAnnotation(kRemoveAnnotation, selection.parent, annotation->getName(), nullptr,
                        nullptr);
  }
  return true;
}

bool orvVeskCommandHook::copySelection(const EditSelection& selection) {
  CommandLine line = lineFor(kCopyCommand, Target(selection.parent));
  if (selection.nodes->size() != 0) {
    line.flag("-sourceNode").texts(shortNamesOf(*selection.nodes));
  }
  if (selection.annotations->size() != 0) {
    line.flag("-sourceAnnotation").texts(shortNamesOf(*selection.annotations));
  }
  return runLineForSuccess(line);
}

bool orvVeskCommandHook::pasteClipboard(const orvUI_v1::PasteRequest& request) {
  CommandLine line = lineFor(kPasteCommand, Target(request.target));
  if (request.duplicateInputConnections) line.flag("-duplicateSourceInputConnections");
  return runLineForSuccess(line);
}

void orvVeskCommandHook::openChangeBracket(ORV_v1::Container* container) {
  CommandLine line(kChangeBracketCommand);
  runBracketLine(line.text(containerNameOf(*container)).flag("-open"));
}

void orvVeskCommandHook::closeChangeBracket(ORV_v1::Container* container) {
  CommandLine line(kChangeBracketCommand);
  runBracketLine(line.text(containerNameOf(*container)).flag("-close"));
}
