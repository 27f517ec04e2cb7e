#pragma once

#include <QPointer>
#include <QWidget>
#include <map>

#include "editors/editorRegistry.h"
#include "editors/orvCompoundEditorCmd.h"
#include "editors/orvParameterEditorCmd.h"
#include "editors/parameterPanels.h"
#include "plugin/pluginName.h"
#include "standalone/workspace/Workspace.h"
#include "tests/commands/CommandTesting.h"
#include "tests/support/ProbeCommand.h"

/// A graph "g", the commands of the editors, and a host whose panels are plain widgets: it notes
/// each line that manages a panel as it was written.
class EditorTest : public CommandTest {
 protected:
  EditorTest() {
    pluginName = "the plug-in";
    for (const char* name : {"orvCompoundEditor", "orvCompoundEditorWindow"}) {
      addCommand(name, orvCompoundEditorCmd::creator, orvCompoundEditorCmd::createSyntax());
    }
    addCommand("orvParameterEditor", orvParameterEditorCmd::creator,
               orvParameterEditorCmd::createSyntax());
    hosttest::addProbe(host, "workspaceControl",
                       {.doIt = [this](KPxCommand&, const KArgList& arguments) {
                         return manage(*HostAccess::argumentsOf(arguments));
                       }});
  }

  ~EditorTest() override {
    for (const auto& [name, panel] : panels) delete panel;
    for (const auto& [name, entry] : editorRegistry) delete entry.editor;
    for (const auto& editor : parameterEditors) delete editor;
    editorRegistry.clear();
  }

  /// The lines since it was last asked.
  hosttest::Texts panelLines() { return std::exchange(lines_, {}); }

  /// Opens a panel, and forgets by which lines.
  EditorEntry& open(const std::string& name) {
    host.run("orvCompoundEditor -name \"" + name + "\"");
    panelLines();
    return editorRegistry[name];
  }

  /// As when the user closes the panel.
  void closeByUser(const std::string& name) { delete panels.at(name); }

  hosttest::Texts badArgument(const std::string& line) {
    return refusalOf(line, StatusBadArgument);
  }

  vesk::Workspace workspace;
  std::map<std::string, QPointer<QWidget>> panels;

  /// Whether the host cannot make panels.
  bool refusesPanels = false;

 private:
  static std::string written(const vesk::Argument& argument) {
    const std::string text = argument.text.asUTF8();
    if (argument.kind != vesk::TokenKind::Quoted) return text;
    std::string quoted = "\"";
    for (const char c : text) {
      if (c == '"' || c == '\\') quoted += '\\';
      quoted += c;
    }
    return quoted + '"';
  }

  KStatus manage(const vesk::ArgumentArray& arguments) {
    std::string line = "workspaceControl";
    for (const vesk::Argument& argument : arguments) line += ' ' + written(argument);
    lines_.push_back(line);
    const std::string name = arguments.back().text.asUTF8();
    const std::string first = arguments.front().text.asUTF8();
    if (refusesPanels) return StatusFailure;
    if (first == "-label") {
      panels[name] = new QWidget;
      workspace.setCurrentParent(panels[name]);
    } else if (line.find("-close") != line.npos) {
      delete panels[name];
    }
    return StatusSuccess;
  }

  hosttest::Texts lines_;
};
