#include "platform/OpenVesk/KUuid.h"

#include "standalone/host/engine/HostAccess.h"

VESK_API_OPEN

KUuid HostAccess::uuid(std::string text) {
  KUuid uuid;
  uuid.text_ = string(std::move(text));
  return uuid;
}

KUuid::KUuid() = default;

KUuid::KUuid(const KUuid& other) = default;

KUuid& KUuid::operator=(const KUuid& other) = default;

KUuid::~KUuid() = default;

KString KUuid::asString() const { return text_; }

VESK_API_CLOSE
