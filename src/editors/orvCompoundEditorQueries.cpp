// What a compound editor is asked.

#include "editors/orvCompoundEditorCmd.h"
#include "platform/ORV_1_0/AnnotationList.h"
#include "platform/ORV_1_0/NodeList.h"
#include "plugin/fromUTF8.h"
#include "plugin/pluginMessages.h"

using ORV_v1::AddRefWrapper;
using ORV_v1::AnnotationList;
using ORV_v1::Compound;
using ORV_v1::Namable;
using ORV_v1::Node;
using ORV_v1::NodeList;
using orvUI_v1::CompoundEditor;

namespace {

constexpr const char* kQuestions[] = {"-dg", "-cc", "-ns", "-an"};

KString textOf(const Namable& name) { return fromUTF8(name.getName()); }

template <class List>
void appendNames(const List& list) {
  for (const auto& object : list) KPxCommand::appendToResult(textOf(*object));
}

void appendSelectedNodes(const CompoundEditor& editor) {
  AddRefWrapper<NodeList> nodes = NodeList::createNew(nullptr);
  editor.getSelectedNodes(nodes);
  appendNames(*nodes);
}

void appendSelectedAnnotations(const CompoundEditor& editor) {
  AddRefWrapper<AnnotationList> annotations = AnnotationList::createNew();
  editor.getSelectedAnnotations(annotations);
  appendNames(*annotations);
}

}  // namespace

/// Only panels and editors that are both there.
KStatus orvCompoundEditorCmd::listEditors() {
  for (const auto& [name, entry] : editorRegistry) {
    if (entry.panel && entry.editor) appendToResult(fromUTF8(name.c_str()));
  }
  return StatusSuccess;
}

/// The one answer to a single question about graph or compound is a text; everything else is a
/// list, in the order of the questions here.
KStatus orvCompoundEditorCmd::answer(const Request& request, const EditorEntry& entry) {
  if (request.has("-ls")) return listEditors();
  if (!entry.editor) {
    displayError(rCompoundEditorNotFound);
    return StatusBadArgument;
  }
  const AddRefWrapper<Compound> shown = entry.editor->currentCompound();
  if (!shown) {
    appendToResult("");
    return StatusSuccess;
  }
  int questions = 0;
  for (const char* flag : kQuestions) questions += request.has(flag);
  const auto give = [single = questions == 1](const KString& text) {
    single ? setResult(text) : appendToResult(text);
  };
  const AddRefWrapper<Node> node = shown->getAsNode();
  if (request.has("-dg")) give(textOf(node->getContainer()->getContainerName()));
  if (request.has("-cc")) give(textOf(node->getFullPathName()));
  if (request.has("-ns")) appendSelectedNodes(*entry.editor);
  if (request.has("-an")) appendSelectedAnnotations(*entry.editor);
  return StatusSuccess;
}
