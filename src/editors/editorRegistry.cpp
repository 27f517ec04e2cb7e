#include "editors/editorRegistry.h"

#include <vector>

#include "editors/panelLines.h"
#include "plugin/fromUTF8.h"

std::unordered_map<std::string, EditorEntry> editorRegistry;

/// What runs when a panel closes may look a name up, which moves the table: it is walked first.
void closeCompoundEditors() {
  std::vector<std::string> open;
  for (const auto& [name, entry] : editorRegistry) {
    if (entry.panel) open.push_back(name);
  }
  for (const std::string& name : open) {
    runPanelLine("workspaceControl -e -close \"^1s\"", fromUTF8(name.c_str()));
  }
}
