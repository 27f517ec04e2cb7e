#include "tests/plugin/RecordedCalls.h"

#include <dlfcn.h>

#include <cstring>
#include <utility>

#include "platform/OpenVesk/KMessage.h"
#include "platform/OpenVesk/KSceneMessage.h"
#include "platform/OpenVesk/KSelectionList.h"
#include "standalone/host/engine/HostAccess.h"

namespace {

std::vector<std::string>& calls() {
  static std::vector<std::string> calls;
  return calls;
}

bool selectionsAreRefused = false;

void note(const std::string& call) { calls().push_back(call); }

template <class Function>
void* addressOf(Function function) {
  void* address = nullptr;
  std::memcpy(&address, &function, sizeof address);
  return address;
}

/// The host's own function of the name that the function at `own` has.
template <class Real>
Real hosts(void* own) {
  Dl_info info{};
  dladdr(own, &info);
  return reinterpret_cast<Real>(dlsym(RTLD_NEXT, info.dli_sname));
}

}  // namespace

std::vector<std::string> takeRecordedCalls() { return std::exchange(calls(), {}); }

RefusedSelections::RefusedSelections() { selectionsAreRefused = true; }

RefusedSelections::~RefusedSelections() { selectionsAreRefused = false; }

VESK_API_OPEN

KStatus KFnPlugin::registerCommand(const KString& name, Creator creator, SyntaxFunction syntax) {
  note("registerCommand " + std::string(HostAccess::text(name)));
  using Real = KStatus (*)(KFnPlugin*, const KString&, Creator, SyntaxFunction);
  return hosts<Real>(addressOf(&KFnPlugin::registerCommand))(this, name, creator, syntax);
}

KStatus KFnPlugin::deregisterCommand(const KString& name) {
  note("deregisterCommand " + std::string(HostAccess::text(name)));
  using Real = KStatus (*)(KFnPlugin*, const KString&);
  return hosts<Real>(addressOf(&KFnPlugin::deregisterCommand))(this, name);
}

KStatus KStringResource::registerString(const KStringResourceId& id) {
  note("registerString " + std::string(HostAccess::key(id)));
  return hosts<decltype(&registerString)>(addressOf(&registerString))(id);
}

std::uint64_t KSceneMessage::addCallback(Message message, Function function, void* clientData,
                                         KStatus* status) {
  note("addCallback " + std::to_string(message) + (clientData ? " with data" : ""));
  return hosts<decltype(&addCallback)>(addressOf(&addCallback))(message, function, clientData,
                                                                status);
}

KStatus KMessage::removeCallback(std::uint64_t id) {
  const KStatus status = hosts<decltype(&removeCallback)>(addressOf(&removeCallback))(id);
  note(status ? "removeCallback" : "removeCallback in vain");
  return status;
}

KStatus KSelectionList::getDependNode(unsigned int index, KObject& object) const {
  if (selectionsAreRefused) return StatusFailure;
  using Real = KStatus (*)(const KSelectionList*, unsigned int, KObject&);
  return hosts<Real>(addressOf(&KSelectionList::getDependNode))(this, index, object);
}

VESK_API_CLOSE
