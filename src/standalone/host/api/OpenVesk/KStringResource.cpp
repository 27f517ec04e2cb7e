#include "platform/OpenVesk/KStringResource.h"

#include "standalone/host/engine/HostAccess.h"
#include "standalone/host/engine/HostSession.h"
#include "standalone/host/engine/StringCatalogues.h"

VESK_API_OPEN

KStatus KStringResource::registerString(const KStringResourceId& id) {
  const std::string_view pluginId = HostAccess::pluginId(id);
  const std::string_view key = HostAccess::key(id);
  if (pluginId.empty() || key.empty()) return StatusBadArgument;
  vesk::HostSession* session = vesk::HostSession::current();
  if (!session) return StatusFailure;
  session->catalogues().registerText(pluginId, key, HostAccess::text(HostAccess::defaultText(id)));
  return StatusSuccess;
}

KString KStringResource::getString(const KStringResourceId& id, KStatus& status) {
  status = StatusFailure;
  vesk::HostSession* session = vesk::HostSession::current();
  if (!session) return HostAccess::defaultText(id);
  auto text = session->catalogues().lookup(HostAccess::pluginId(id), HostAccess::key(id));
  if (!text) return HostAccess::defaultText(id);
  status = StatusSuccess;
  return HostAccess::string(std::move(*text));
}

VESK_API_CLOSE
