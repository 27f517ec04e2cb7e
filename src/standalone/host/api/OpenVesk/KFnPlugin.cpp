#include "platform/OpenVesk/KFnPlugin.h"

#include "standalone/host/engine/HostAccess.h"
#include "standalone/host/engine/HostSession.h"
#include "standalone/host/engine/HostVersion.h"

VESK_API_OPEN

struct KFnPlugin::Rep {
  std::shared_ptr<vesk::Plugin> plugin;
};

namespace {

vesk::CommandRegistry* registry() {
  vesk::HostSession* session = vesk::HostSession::current();
  return session ? &session->registry() : nullptr;
}

}  // namespace

KFnPlugin::KFnPlugin(KObject& object, const char* vendor, const char* version,
                     const char* requiredVersion, KStatus* status)
    : rep_(new Rep{std::dynamic_pointer_cast<vesk::Plugin>(HostAccess::objectOf(object))}) {
  const std::string_view required = requiredVersion ? requiredVersion : "";
  const bool fits = required == "Any" || required == vesk::kApiVersion;
  if (rep_->plugin) {
    rep_->plugin->vendor = vendor ? vendor : "";
    rep_->plugin->version = version ? version : "";
  }
  if (status) *status = !rep_->plugin ? StatusFailure : fits ? StatusSuccess : StatusBadArgument;
}

KFnPlugin::~KFnPlugin() { delete rep_; }

KString KFnPlugin::name(KStatus* status) const {
  if (status) *status = rep_->plugin ? StatusSuccess : StatusFailure;
  return rep_->plugin ? HostAccess::string(rep_->plugin->name()) : KString();
}

KStatus KFnPlugin::registerCommand(const KString& name, Creator creator, SyntaxFunction syntax) {
  vesk::CommandRegistry* commands = registry();
  if (!commands || !rep_->plugin) return StatusFailure;
  if (!creator || !syntax) return StatusBadArgument;
  switch (commands->add(
      {std::string(HostAccess::text(name)), creator, syntax(), rep_->plugin.get(), {}})) {
    case vesk::CommandRegistry::Outcome::Registered:
      return StatusSuccess;
    case vesk::CommandRegistry::Outcome::NameTaken:
      return StatusFailure;
    default:
      return StatusBadArgument;
  }
}

KStatus KFnPlugin::deregisterCommand(const KString& name) {
  vesk::CommandRegistry* commands = registry();
  const bool removed =
      commands && rep_->plugin && commands->remove(HostAccess::text(name), rep_->plugin.get());
  return removed ? StatusSuccess : StatusFailure;
}

VESK_API_CLOSE
