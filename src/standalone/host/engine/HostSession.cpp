#include "standalone/host/engine/HostSession.h"

#include "standalone/host/commands/BuiltinCommand.h"
#include "standalone/host/engine/OptionVariables.h"
#include "standalone/host/engine/StringCatalogues.h"
#include "standalone/host/language/Tokenizer.h"
#include "standalone/host/scene/Scene.h"

namespace vesk {
namespace {

HostSession* currentSession = nullptr;

/// Every command of the host itself.
void registerBuiltins(CommandRegistry& registry) {
  registerUndoCommands(registry);
  registerSceneCommands(registry);
  registerFileCommand(registry);
  registerOptionVarCommand(registry);
  registerInformationCommands(registry);
  registerPluginCommands(registry);
  registerSessionCommands(registry);
}

}  // namespace

HostSession::HostSession(SessionOptions options)
    : options_(std::move(options)),
      previous_(currentSession),
      messages_(options_.messages),
      optionVariables_(std::make_unique<OptionVariables>(options_.preferencesFolder, messages_)),
      catalogues_(std::make_unique<StringCatalogues>(options_.catalogueFolders, options_.language,
                                                     messages_)),
      scene_(std::make_unique<Scene>(messages_, sceneEvents_)),
      plugins_(*this),
      undoQueue_(messages_),
      engine_(*this),
      journal_(messages_) {
  messages_.addSink([this](const Message& message) { journal_.note(message); });
  currentSession = this;
  registerBuiltins(registry_);
}

HostSession::~HostSession() {
  exit();
  plugins_.unloadAll();  // what could not be unloaded at the exit
  undoQueue_.clear();
  messages_ =
      MessageChannel();  // what hears them, the journal too, may go ahead of what sends them
  currentSession = previous_;
}

HostSession* HostSession::current() { return currentSession; }

KStatus HostSession::runLine(std::string_view text, ResultValue& result) {
  const KStatus status = engine_.run(text, result);
  const KStatus idleStatus = runIdleLines();
  if (options_.batch && !quitRequested) {
    optionVariables_->saveSometimes();
  } else {  // nothing may follow for long
    optionVariables_->saveIfChanged();
  }
  return status ? idleStatus : status;
}

KStatus HostSession::runIdleLines() {
  KStatus first;
  if (engine_.isRunning()) return first;
  while (!idleQueue_.isEmpty() && !quitRequested) {
    const IdleQueue::Line line = idleQueue_.take();
    ResultValue result;
    const KStatus status =
        engine_.run(line.text, result, {.display = line.display, .leftByLine = line.leftByLine});
    if (status) continue;
    messages_.error("idle line: " + quotedBriefly(line.text) + " failed with status " +
                    std::to_string(status.statusCode()));
    if (first) first = status;
  }
  return first;
}

void HostSession::exit() {
  if (exited_) return;
  exited_ = true;
  sceneEvents_.send(SceneEvent::Exiting);
  plugins_.unloadAll();
  optionVariables_->saveIfChanged();
}

}  // namespace vesk
