#include "platform/OpenVesk/KMessage.h"

#include "standalone/host/engine/HostSession.h"

VESK_API_OPEN

KStatus KMessage::removeCallback(std::uint64_t id) {
  vesk::HostSession* session = vesk::HostSession::current();
  return session && session->sceneEvents().remove(id) ? StatusSuccess : StatusFailure;
}

VESK_API_CLOSE
