#pragma once

#include <memory>
#include <string>
#include <vector>

#include "standalone/host/engine/CommandEngine.h"
#include "standalone/host/engine/CommandRegistry.h"
#include "standalone/host/engine/IdleQueue.h"
#include "standalone/host/engine/Journal.h"
#include "standalone/host/engine/Messages.h"
#include "standalone/host/engine/PluginLoader.h"
#include "standalone/host/engine/SceneEvents.h"
#include "standalone/host/engine/UndoQueue.h"

namespace vesk {

class OptionVariables;
class Scene;
class StringCatalogues;

struct SessionOptions {
  bool batch = true;                          ///< nobody sits in front of it
  std::string preferencesFolder;              ///< of the option variables; empty: they are not kept
  std::vector<std::string> catalogueFolders;  ///< searched in order for translations
  std::string language;           ///< like "de" or "de_AT"; empty: texts stay as written
  MessageChannel::Sink messages;  ///< hears every message from the first on; null: nobody
};

/// Everything the host holds. One session at a time is current: the one built last.
class HostSession {
 public:
  explicit HostSession(SessionOptions options = {});
  ~HostSession();
  HostSession(const HostSession&) = delete;
  HostSession& operator=(const HostSession&) = delete;

  /// Null when there is none.
  static HostSession* current();

  /// Runs one line as a user types it, then what it left on the idle queue. The status is that of
  /// the line, or else of the first idle line that failed; the result is that of the line.
  KStatus runLine(std::string_view text, ResultValue& result);

  /// Runs the lines on the idle queue, also those that they add. The user is told each that fails;
  /// the status is that of the first.
  KStatus runIdleLines();

  /// Ends the session: tells the scene's listeners, unloads the plug-ins, saves the option
  /// variables. Does so once.
  void exit();

  /// `quit` was run; whoever reads lines stops and exits with `exitStatus`.
  bool quitRequested = false;
  int exitStatus = 0;

  /// How many mouse buttons the host tracks.
  int mouseButtons = 3;

  const SessionOptions& options() const { return options_; }
  MessageChannel& messages() { return messages_; }
  CommandRegistry& registry() { return registry_; }
  CommandEngine& engine() { return engine_; }
  UndoQueue& undoQueue() { return undoQueue_; }
  IdleQueue& idleQueue() { return idleQueue_; }
  Journal& journal() { return journal_; }
  SceneEvents& sceneEvents() { return sceneEvents_; }
  PluginLoader& plugins() { return plugins_; }
  Scene& scene() { return *scene_; }
  OptionVariables& optionVariables() { return *optionVariables_; }
  StringCatalogues& catalogues() { return *catalogues_; }

 private:
  SessionOptions options_;
  HostSession* previous_;
  bool exited_ = false;
  MessageChannel messages_;
  CommandRegistry registry_;
  SceneEvents sceneEvents_;
  std::unique_ptr<OptionVariables> optionVariables_;
  std::unique_ptr<StringCatalogues> catalogues_;
  std::unique_ptr<Scene> scene_;
  PluginLoader plugins_;
  UndoQueue undoQueue_;
  CommandEngine engine_;
  IdleQueue idleQueue_;
  Journal journal_;
};

}  // namespace vesk
