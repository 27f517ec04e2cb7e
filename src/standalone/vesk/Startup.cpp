#include "standalone/vesk/Startup.h"

#include <filesystem>
#include <utility>

#include "standalone/colour/colorManagementCommand.h"
#include "standalone/host/scene/Scene.h"
#include "standalone/vesk/DataFolders.h"
#include "standalone/vesk/OrvGraphPayload.h"
#include "standalone/vesk/evaluateCommand.h"
#include "standalone/widgets/colour/ColourRegistry.h"
#include "standalone/workspace/workspaceCommands.h"

namespace vesk {
namespace {

SessionOptions sessionOptions(const ProgramOptions& options, bool kept) {
  SessionOptions session;
  session.batch = options.batch;
  session.preferencesFolder = options.preferencesFolder;
  session.language = options.language;
  session.catalogueFolders = {shippedCatalogueFolder()};
  if (kept && session.preferencesFolder.empty()) {
    session.preferencesFolder = defaultPreferencesFolder();
  }
  if (kept && session.language.empty()) session.language = localeLanguage();
  return session;
}

std::string publishedFolder(const ProgramOptions& options, bool kept) {
  const bool byDefault = kept && options.publishedFolder.empty();
  return byDefault ? defaultPublishedFolder() : options.publishedFolder;
}

/// What a user has in the environment does not count where nothing of the user's does.
colour::ColourOptions colourOptions(const ProgramOptions& options, bool kept) {
  colour::ColourOptions colours;
  colours.configuration = options.colours;
  colours.readsEnvironment = kept;
  return colours;
}

}  // namespace

Platform::Platform(const ProgramOptions& options, LineListener& listener, bool kept)
    : listener_(&listener), runtimes_(std::make_unique<orvlib::RuntimeRegistry>()) {
  SessionOptions session = sessionOptions(options, kept);
  session.messages = [this](const Message& message) { listener_->message(message); };
  session_ = std::make_unique<HostSession>(std::move(session));
  addOrvGraphType(session_->scene().types());
  registerEvaluateCommand(session_->registry());
  colour::registerColorManagementCommand(session_->registry());
  colours_ = std::make_unique<colour::ColourService>(colourOptions(options, kept));
  colours_->setChangeListener([] { orvuilib::ColourRegistry::instance().tellChange(); });
  registerWorkspaceCommands(session_->registry());
  runtimes_->makeCurrent();
  runtimes_->setPublishedFolder(publishedFolder(options, kept));
  runtimes_->setDiagnosticHandler([this](const orvlib::Diagnostic& diagnostic) {
    session_->messages().warning(diagnostic.toText());
  });
  if (!options.journal.empty() && !session_->journal().open(options.journal)) {
    problem_ = "the journal \"" + options.journal + "\" cannot be written";
    return;
  }
  if (loadLibraries(options)) loadPlugins(options);
}

Platform::~Platform() {
  session_.reset();
  colours_.reset();
  runtimes_.reset();
}

bool Platform::loadLibraries(const ProgramOptions& options) {
  std::vector<std::string> folders = options.libraries;
  if (folders.empty()) folders.push_back(shippedLibraryFolder());
  for (const std::string& folder : folders) {
    std::error_code error;
    if (!std::filesystem::is_directory(folder, error)) {
      problem_ = "the library \"" + folder + "\" is no folder";
      return false;
    }
    runtimes_->report(runtimes_->load(folder));
  }
  return true;
}

bool Platform::loadPlugins(const ProgramOptions& options) {
  std::vector<std::string> modules = options.plugins;
  if (modules.empty() && !options.noPlugin) modules.push_back(shippedModulePath());
  for (const std::string& module : modules) {
    if (session_->plugins().load(module)) continue;
    problem_ = "the plug-in \"" + module + "\" could not be loaded";
    return false;
  }
  return true;
}

KStatus Platform::runLine(std::string_view line, LineListener& listener) {
  ResultValue result;
  LineListener* const outside = std::exchange(listener_, &listener);
  listener.lineBegins(line);
  const KStatus status = session_->runLine(line, result);
  listener.lineEnded(result, status);
  listener_ = outside;
  return status;
}

}  // namespace vesk
