#include "platform/OpenVesk/KGlobal.h"

#include "standalone/host/engine/HostAccess.h"
#include "standalone/host/engine/HostSession.h"
#include "standalone/host/scene/Scene.h"
#include "standalone/host/scene/SceneNode.h"

VESK_API_OPEN

namespace {

KStatus run(const KString& line, vesk::ResultValue& result, bool display, bool undo) {
  vesk::HostSession* session = vesk::HostSession::current();
  if (!session) return StatusFailure;
  const KString text(line);  // what runs may change the caller's string
  return session->engine().run(HostAccess::text(text), result, {.display = display, .undo = undo});
}

}  // namespace

KStatus KGlobal::executeCommand(const KString& line, bool displayEnabled, bool undoEnabled) {
  vesk::ResultValue result;
  return run(line, result, displayEnabled, undoEnabled);
}

KStatus KGlobal::executeCommand(const KString& line, KCommandResult& result, bool displayEnabled,
                                bool undoEnabled) {
  return run(line, HostAccess::value(result), displayEnabled, undoEnabled);
}

KStatus KGlobal::executeCommand(const KString& line, int& result, bool displayEnabled,
                                bool undoEnabled) {
  KCommandResult value;
  const KStatus status = executeCommand(line, value, displayEnabled, undoEnabled);
  return status ? value.getResult(result) : status;
}

KStatus KGlobal::executeCommandOnIdle(const KString& line, bool displayEnabled) {
  vesk::HostSession* session = vesk::HostSession::current();
  if (!session) return StatusFailure;
  session->idleQueue().add(
      {std::string(HostAccess::text(line)), displayEnabled, session->engine().isRunning()});
  return StatusSuccess;
}

void KGlobal::displayError(const KString& message) {
  if (auto* session = vesk::HostSession::current()) {
    session->messages().error(HostAccess::text(message));
  }
}

void KGlobal::displayWarning(const KString& message) {
  if (auto* session = vesk::HostSession::current()) {
    session->messages().warning(HostAccess::text(message));
  }
}

bool KGlobal::isUndoing() {
  auto* session = vesk::HostSession::current();
  return session && session->undoQueue().isUndoing();
}

bool KGlobal::isRedoing() {
  auto* session = vesk::HostSession::current();
  return session && session->undoQueue().isRedoing();
}

KStatus KGlobal::getSelectionListByName(const KString& name, KSelectionList& list) {
  auto* session = vesk::HostSession::current();
  const auto node = session ? session->scene().find(HostAccess::text(name)) : nullptr;
  if (!node) return StatusFailure;
  HostAccess::append(list, HostAccess::object(node));
  return StatusSuccess;
}

VESK_API_CLOSE
