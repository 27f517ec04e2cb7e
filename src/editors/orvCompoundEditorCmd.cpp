#include "editors/orvCompoundEditorCmd.h"

#include <algorithm>
#include <new>

#include "editors/panelLines.h"
#include "platform/ORV_1_0/NodeList.h"
#include "platform/ORV_1_0/PortDataType.h"
#include "platform/OpenVeskUI/KQtUtil.h"
#include "plugin/FlagRow.h"
#include "plugin/fromUTF8.h"
#include "plugin/pluginMessages.h"
#include "plugin/pluginName.h"

using ORV_v1::AddRefWrapper;
using ORV_v1::Compound;
using ORV_v1::Container;
using ORV_v1::Node;
using ORV_v1::NodeList;
using ORV_v1::PortDataType;
using ORV_v1::StringArray;
using orvUI_v1::CompoundEditor;

namespace {

constexpr KSyntax::KArgType kInteger = KSyntax::ArgInteger;

constexpr FlagRow kFlags[] = {
    {"-nm", "-name", kText},
    {"-tl", "-title", kText},
    {"-rt", "-runtimeHint", kText},
    {"-rl", "-reload"},
    {"-ed", "-edit", kText},
    {"-cc", "-currentCompound", kText},
    {"-sk", "-sendKey", kInteger, kInteger},
    {"-sn", "-selectNodes", kText},
    {"-ls", "-listEditors"},
    {"-dg", "-dgContainer"},
    {"-ns", "-nodeSelection", kText},
    {"-an", "-annSelection"},
};

constexpr const char* kDefaultName = "orvCompoundEditorControl";

KStatus refuseArgument(MessageId message) {
  displayError(message);
  return StatusBadArgument;
}

KStatus refuseArgument(MessageId message, const KString& argument) {
  displayError(message, argument);
  return StatusBadArgument;
}

/// Of an argument that cannot be read the user is told nothing.
KStatus readText(const KArgParser& line, const char* flag, KString& text) {
  KStatus status;
  const KString read = line.flagArgumentString(flag, 0, &status);
  if (!status) return StatusBadArgument;
  text = read;
  return StatusSuccess;
}

KStatus readTextIfSet(const KArgParser& line, const char* flag, KString& text) {
  return line.isFlagSet(flag) ? readText(line, flag, text) : StatusSuccess;
}

/// What the editor shows. Null, and the user is told, without an editor or when it is blank.
AddRefWrapper<Compound> requireShown(const EditorEntry& entry) {
  AddRefWrapper<Compound> shown;
  if (!entry.editor) {
    displayError(rCompoundEditorNotFound);
  } else {
    shown = entry.editor->currentCompound();
    if (!shown) displayError(rCompoundEditorBlank);
  }
  return shown;
}

/// By name among the nodes of the compound, or else by path in its graph; null when there is none.
AddRefWrapper<Node> findNode(Compound& compound, const char* nameOrPath) {
  const AddRefWrapper<Node> child = compound.getChildNodes()[nameOrPath];
  return child ? child : compound.getAsNode()->getContainer()->findNodeFromPath(nameOrPath);
}

}  // namespace

KPxCommand* orvCompoundEditorCmd::creator() { return new (std::nothrow) orvCompoundEditorCmd; }

KSyntax orvCompoundEditorCmd::createSyntax() {
  KSyntax syntax;
  syntax.enableQuery(true);
  addFlags(syntax, kFlags);
  syntax.makeFlagQueryWithFullArgs("-nm", false);
  return syntax;
}

bool orvCompoundEditorCmd::hasSyntax() const { return true; }

bool orvCompoundEditorCmd::Request::hasAny(std::initializer_list<const char*> flags) const {
  return std::ranges::any_of(flags, [this](const char* flag) { return has(flag); });
}

/// A step that fails ends the line; what the steps before it did stays done.
KStatus orvCompoundEditorCmd::doIt(const KArgList& args) {
  const KArgParser line(syntax(), args);
  Request request{line};
  KStatus status = readNames(request);
  if (status) status = line.isQuery() ? checkQuery(request) : checkEdit(request);
  if (status) status = findGraph(request);
  if (!status) return status;

  EditorEntry& entry = editorRegistry[request.name.asUTF8()];
  if (line.isQuery()) return answer(request, entry);
  status = diveIn(request, entry);
  if (status) status = sendKey(request, entry);
  if (status && request.selects()) status = select(request, entry);
  if (!status) return status;
  if (request.opensPanel()) openPanel(request, entry);
  if (entry.editor && request.topNode) entry.editor->editCompound(request.topNode);
  return StatusSuccess;
}

/// In a query a flag comes without its argument: the title and the hint are refused there as flags.
KStatus orvCompoundEditorCmd::readNames(Request& request) {
  KStatus status = readTextIfSet(request.line, "-nm", request.name);
  if (!status || request.line.isQuery()) return status;
  status = readTextIfSet(request.line, "-tl", request.title);
  return status ? readTextIfSet(request.line, "-rt", request.runtimeHint) : status;
}

/// Without a name any editor that is there is asked.
KStatus orvCompoundEditorCmd::checkQuery(Request& request) {
  if (request.hasAny({"-rl", "-ed", "-sk", "-tl", "-rt"})) return refuseArgument(rFlagIsNotQuery);
  if (request.name.length() > 0) return StatusSuccess;
  if (editorRegistry.empty()) {
    return request.has("-ls") ? KStatus() : refuseArgument(rNoCompoundEditor);
  }
  for (const auto& [name, entry] : editorRegistry) {
    if (!entry.panel || !entry.editor) continue;
    request.name.setUTF8(name.c_str());
    break;
  }
  return StatusSuccess;
}

KStatus orvCompoundEditorCmd::checkEdit(Request& request) {
  if (request.name.length() == 0) request.name = kDefaultName;
  return request.hasAny({"-ls", "-dg", "-an"}) ? refuseArgument(rFlagRequiresQuery) : KStatus();
}

KStatus orvCompoundEditorCmd::findGraph(Request& request) {
  if (!request.has("-ed")) return StatusSuccess;
  const KStatus status = readText(request.line, "-ed", containerName);
  if (!status) return status;
  if (Container* container = findContainer(containerName))
    request.topNode = container->getTopNode();
  if (!request.topNode) return refuseArgument(rInvalidORVContainerError, containerName);
  const bool steers = request.hasAny({"-cc", "-sk", "-sn"});
  return steers ? refuseArgument(rEditFlagNotCombinable) : KStatus();
}

KStatus orvCompoundEditorCmd::diveIn(const Request& request, const EditorEntry& entry) {
  if (!request.has("-cc")) return StatusSuccess;
  const AddRefWrapper<Compound> shown = requireShown(entry);
  if (!shown) return StatusBadArgument;
  KString target;
  const KStatus status = readText(request.line, "-cc", target);
  if (!status) return status;
  const AddRefWrapper<Node> node = findNode(*shown, target.asUTF8());
  const AddRefWrapper<Compound> compound = node ? node->asCompound() : AddRefWrapper<Compound>();
  const bool dived = compound && entry.editor->diveInCompound(compound);
  return dived ? KStatus() : refuseArgument(rInvalidCompoundNameError, target);
}

KStatus orvCompoundEditorCmd::sendKey(const Request& request, const EditorEntry& entry) {
  if (!request.has("-sk")) return StatusSuccess;
  if (!entry.editor) return refuseArgument(rCompoundEditorNotFound);
  KStatus keyRead;
  KStatus modifiersRead;
  const int key = request.line.flagArgumentInt("-sk", 0, &keyRead);
  const int modifiers = request.line.flagArgumentInt("-sk", 1, &modifiersRead);
  if (!keyRead || !modifiersRead) return StatusBadArgument;
  entry.editor->sendKeyEvent(key, QFlags<Qt::KeyboardModifier>(QFlag(modifiers)));
  return StatusSuccess;
}

/// All nodes must be there, or the selection stays as it was.
KStatus orvCompoundEditorCmd::select(const Request& request, const EditorEntry& entry) {
  const AddRefWrapper<Compound> shown = requireShown(entry);
  if (!shown) return StatusBadArgument;
  KString text;
  const KStatus status = readText(request.line, request.has("-sn") ? "-sn" : "-ns", text);
  if (!status) return status;
  if (text.numChars() == 0) return refuseArgument(rInvalidArgumentCountError);

  StringArray names;
  unserializePortValues(text, names, AddRefWrapper<PortDataType>());
  const AddRefWrapper<NodeList> nodes = NodeList::createNew(nullptr);
  for (const char* name : names) {
    const AddRefWrapper<Node> node = findNode(*shown, name);
    if (!node) {
      displayError(rInvalidNodedNameError, fromUTF8(name));
      return StatusFailure;
    }
    nodes->add(node);
  }
  entry.editor->setSelectedNodes(nodes);
  return StatusSuccess;
}

/// A panel that is there is brought back. Reloading fills a panel that the host has made itself.
void orvCompoundEditorCmd::openPanel(const Request& request, EditorEntry& entry) {
  if (entry.panel) return runPanelLine("workspaceControl -e -restore ^1s", request.name);
  const bool reloads = request.has("-rl");
  if (!reloads) {
    runPanelLine(
        "workspaceControl -label \"^1s\" -retain false -deleteLater false -loadImmediately true "
        "-floating true -initialWidth 1024 -initialHeight 600 -requiredPlugin \"^2s\" \"^3s\"",
        request.title, pluginName, request.name);
  }
  passInterfaceScale();
  entry.panel = KQtUtil::getCurrentParent();
  entry.editor = CompoundEditor::create(nullptr);
  if (entry.editor && request.runtimeHint.length() > 0) {
    entry.editor->setRuntimeNameHint(request.runtimeHint.asChar());
  }
  KQtUtil::addWidgetToVeskLayout(entry.editor, entry.panel, "");
  if (reloads) return;
  runPanelLine(
      "workspaceControl -e -uiScript \"orvCompoundEditor -name \\\"^1s\\\" -title \\\"^2s\\\" "
      "-reload\" \"^1s\"",
      request.name, request.title);
}
