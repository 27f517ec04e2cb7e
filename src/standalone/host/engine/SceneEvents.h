#pragma once

#include <cstdint>
#include <vector>

#include "platform/OpenVesk/KSceneMessage.h"

namespace vesk {

/// What happens to the scene. Number 30, the exit, is `KSceneMessage::kExiting`.
enum class SceneEvent {
  BeforeNew = 1,
  AfterNew = 2,
  BeforeOpen = 3,
  AfterOpen = 4,
  BeforeSave = 5,
  AfterSave = 6,
  Exiting = KSceneMessage::kExiting,
};

/// Callbacks on scene events. A callback may add and remove callbacks, itself among them.
class SceneEvents {
 public:
  using Id = std::uint64_t;

  Id add(SceneEvent event, KSceneMessage::Function function, void* clientData);

  /// False for an id that is not in use.
  bool remove(Id id);

  /// Removes the callbacks whose code lies in a loaded library, named by its base address.
  void removeThoseIn(const void* libraryBase);

  /// Calls what was there when the event began and still is when its turn comes.
  void send(SceneEvent event);

  bool isSending() const { return sending_ > 0; }
  bool hasCallbackIn(const void* libraryBase) const;

 private:
  struct Callback {
    Id id;
    SceneEvent event;
    KSceneMessage::Function function;
    void* clientData;
  };

  std::vector<Callback> callbacks_;
  Id lastId_ = 0;
  int sending_ = 0;
};

}  // namespace vesk
