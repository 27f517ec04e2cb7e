#include "platform/OpenVesk/KSceneMessage.h"

#include "standalone/host/engine/HostSession.h"

VESK_API_OPEN

std::uint64_t KSceneMessage::addCallback(Message message, Function function, void* clientData,
                                         KStatus* status) {
  vesk::HostSession* session = vesk::HostSession::current();
  KStatus outcome = StatusSuccess;
  if (!function) {
    outcome = StatusBadArgument;
  } else if (!session) {
    outcome = StatusFailure;
  }
  if (status) *status = outcome;
  if (!outcome) return 0;
  const auto event = static_cast<vesk::SceneEvent>(message);
  return session->sceneEvents().add(event, function, clientData);
}

VESK_API_CLOSE
