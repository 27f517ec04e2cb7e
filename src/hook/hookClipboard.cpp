// The clipboard and change brackets.

#include <vector>

#include "hook/Target.h"
#include "hook/execution.h"
#include "hook/orvVeskCommandHook.h"

using ORV_v1::AddRefWrapper;
using orvUI_v1::EditSelection;

namespace {

/// What the list holds now: a list that is the level's own gets shorter as a cut removes from it.
template <class Object, class List>
std::vector<AddRefWrapper<Object>> handlesOf(const List& list) {
  std::vector<AddRefWrapper<Object>> handles;
  handles.reserve(list.size());
  for (const auto& object : list) handles.push_back(object);
  return handles;
}

}  // namespace

/// Through the interface, so that whoever takes over one of the edits takes it over here too.
bool orvVeskCommandHook::cutSelection(const EditSelection& selection) {
  CommandHook& hook = *this;
  if (!hook.copySelection(selection)) return false;
  const auto nodes = handlesOf<ORV_v1::Node>(*selection.nodes);
  const auto annotations = handlesOf<ORV_v1::Annotation>(*selection.annotations);
  for (const NodeHandle& node : nodes) hook.removeNode(node);
  for (const auto& annotation : annotations) {
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
