// Files: definitions, option variables, workspaces, catalogues, scripts and transcripts.

#include "fuzz/TemporaryFolder.h"
#include "fuzz/checkGraph.h"
#include "fuzz/readers.h"
#include "fuzz/require.h"
#include "platform/ORV_1_0/NodeCommand.h"
#include "standalone/graph/library/RuntimeRegistry.h"
#include "standalone/host/engine/Messages.h"
#include "standalone/host/engine/OptionVariables.h"
#include "standalone/host/engine/ScriptReader.h"
#include "standalone/host/engine/StringCatalogues.h"
#include "standalone/vesk/Transcript.h"
#include "standalone/workspace/WorkspaceFile.h"

namespace fuzz {
namespace {

constexpr const char* kRuntime =
    "name: trial\nniceName: Trial\ndescription: Small.\nrootLibrary: core\nportTypes:\n"
    "  - {name: bool, niceName: B, description: T., scalar: boolean}\n"
    "  - {name: int, niceName: I, description: T., scalar: integer}\n"
    "  - {name: float, niceName: F, description: T., scalar: float, default: 0.25}\n"
    "  - {name: string, niceName: S, description: T., scalar: string}\n"
    "  - {name: pair, niceName: P, description: T., scalar: float, components: [x, y]}\n"
    "  - {name: array<pair>, niceName: A, description: T., element: pair}\n";
constexpr const char* kLibrary = "library: core\nniceName: Core\ndescription: Root.\n";

const TemporaryFolder& folder() {
  static const TemporaryFolder folder;
  folder.clear();
  return folder;
}

/// Puts a node of every definition into a graph.
void useAll(const ORV_v1::Runtime& runtime) {
  const auto root = runtime.getRootLibrary();
  if (!root) return;
  orvlib::Graph graph(runtime.getName());
  const auto top = graph.container().getTopNode()->asCompound();
  for (unsigned int i = 0; i < root->getNumberOfNodes(); ++i) {
    ORV_v1::NodeCommand command;
    if (command.createNode(top, root->getNodeAt(i)->getName(), "")) command.doit();
  }
  checkGraph(graph.container());
}

/// Loads what lies in the folder, twice, beside what is loaded already.
void loadRuntimes(const TemporaryFolder& files) {
  orvlib::RuntimeRegistry* const outside = orvlib::RuntimeRegistry::current();
  {
    orvlib::RuntimeRegistry registry;
    registry.setPublishedFolder(files.path("published"));
    for (const auto& diagnostic : registry.load(files.path("library"))) {
      require(!diagnostic.toText().empty(), "a diagnostic has a text");
    }
    registry.makeCurrent();
    for (unsigned int i = 0; i < registry.size(); ++i) {
      registry.at(i)->forceRebuildCompounds();
      useAll(*registry.at(i));
    }
  }
  outside->makeCurrent();
}

}  // namespace

void readRuntimeFile(std::string_view text) {
  const TemporaryFolder& files = folder();
  files.write("library/trial/runtime.yaml", text);
  files.write("library/trial/core.yaml", kLibrary);
  loadRuntimes(files);
}

void readLibraryFile(std::string_view text) {
  const TemporaryFolder& files = folder();
  files.write("library/trial/runtime.yaml", kRuntime);
  files.write("library/trial/core.yaml", text);
  loadRuntimes(files);
}

void readCompoundFile(std::string_view text) {
  const TemporaryFolder& files = folder();
  files.write("library/trial/runtime.yaml", kRuntime);
  files.write("library/trial/core.yaml", kLibrary);
  files.write("published/trial/made.yaml", text);
  loadRuntimes(files);
}

void readOptionVariables(std::string_view text) {
  const TemporaryFolder& files = folder();
  files.write("optionVars.json", text);
  vesk::MessageChannel messages;
  std::vector<std::string> names;
  {
    vesk::OptionVariables variables(files.path().string(), messages);
    names = variables.names();
    if (!variables.set("fuzz", 1)) return;
  }
  vesk::OptionVariables again(files.path().string(), messages);
  for (const std::string& name : names) require(again.find(name), "a variable stays", name);
  require(again.find("fuzz"), "a variable that was set stays");
}

void readWorkspaceText(std::string_view text) {
  const TemporaryFolder& files = folder();
  std::string reason;
  const auto state = vesk::readWorkspaceFile(files.write("workspace.json", text), reason);
  require(state.has_value() == reason.empty(), "a damaged file has a reason");
  if (!state) return;
  const std::string written = workspaceText(*state);
  const auto again = vesk::readWorkspaceFile(files.write("workspace.json", written), reason);
  require(again && workspaceText(*again) == written, "a workspace reads back", written);
}

void readCatalogue(std::string_view text) {
  const TemporaryFolder& files = folder();
  files.write("de/module.json", text);
  vesk::MessageChannel messages;
  vesk::StringCatalogues catalogues({files.path().string()}, "de_AT", messages);
  catalogues.registerText("module", "key", "text");
  require(catalogues.lookup("module", "key").has_value(), "a registered text is found");
}

void readScriptFile(std::string_view text) {
  std::string reason;
  const auto script = vesk::readScript(folder().write("script.vesk", text), reason);
  require(script.has_value(), "a script is read", reason);
  std::size_t size = 0;
  std::size_t lines = 0;
  vesk::forEachLine(*script, [&](std::string_view line, std::size_t number) {
    size += line.size() + 1;
    lines = number;
    return true;
  });
  require(size == script->size() || size == script->size() + 1, "no line is lost");
  require((lines == 0) == script->empty(), "a script that is not empty has a line");
}

void readTranscript(std::string_view text) {
  std::string error;
  const auto silent = [](std::string_view line, vesk::LineListener& listener) {
    listener.lineBegins(line);
    listener.lineEnded({}, {});
  };
  const std::string once = vesk::rerunTranscript(text, silent, error);
  if (!error.empty()) return;
  const std::string twice = vesk::rerunTranscript(once, silent, error);
  require(error.empty() && once == twice, "a transcript that was run again stays", once);
}

}  // namespace fuzz
