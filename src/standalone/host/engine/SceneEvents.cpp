#include "standalone/host/engine/SceneEvents.h"

#include <dlfcn.h>

#include <algorithm>

namespace vesk {
namespace {

bool liesIn(KSceneMessage::Function function, const void* libraryBase) {
  Dl_info info{};
  return dladdr(reinterpret_cast<const void*>(function), &info) != 0 &&
         info.dli_fbase == libraryBase;
}

}  // namespace

SceneEvents::Id SceneEvents::add(SceneEvent event, KSceneMessage::Function function,
                                 void* clientData) {
  callbacks_.push_back({++lastId_, event, function, clientData});
  return lastId_;
}

bool SceneEvents::remove(Id id) {
  return std::erase_if(callbacks_, [id](const Callback& callback) { return callback.id == id; }) >
         0;
}

void SceneEvents::removeThoseIn(const void* libraryBase) {
  std::erase_if(callbacks_, [libraryBase](const Callback& callback) {
    return liesIn(callback.function, libraryBase);
  });
}

bool SceneEvents::hasCallbackIn(const void* libraryBase) const {
  return std::any_of(callbacks_.begin(), callbacks_.end(), [libraryBase](const Callback& callback) {
    return liesIn(callback.function, libraryBase);
  });
}

void SceneEvents::send(SceneEvent event) {
  const std::vector<Callback> atStart = callbacks_;
  ++sending_;
  for (const Callback& callback : atStart) {
    const bool stays = std::any_of(callbacks_.begin(), callbacks_.end(),
                                   [&](const Callback& now) { return now.id == callback.id; });
    if (stays && callback.event == event) callback.function(callback.clientData);
  }
  --sending_;
}

}  // namespace vesk
