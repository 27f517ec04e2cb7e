#pragma once

#include "standalone/graph/library/RuntimeRegistry.h"
#include "standalone/host/scene/Scene.h"
#include "standalone/vesk/OrvGraphPayload.h"
#include "testPaths.h"
#include "tests/support/HostTest.h"

namespace hosttest {

/// The runtimes that are shipped. They outlive what uses them.
class ShippedRuntimes {
 public:
  ShippedRuntimes() {
    for (const auto& diagnostic : runtimes_.load(VESK_SOURCE_DIR "/library")) {
      ADD_FAILURE() << diagnostic.toText();
    }
    runtimes_.makeCurrent();
  }

 private:
  orvlib::RuntimeRegistry runtimes_;
};

/// A host whose scene has graphs. Link `veskProgram`, and build tests/support/HostTest.cpp.
class GraphHost : private ShippedRuntimes, public Host {
 public:
  explicit GraphHost(vesk::SessionOptions options = {}) : Host(std::move(options)) {
    vesk::addOrvGraphType(session().scene().types());
  }

  /// Makes a scene node of type `orvGraph`, and gives its graph by the node's UUID.
  ORV_v1::Container& graph(const char* name) {
    run("createNode orvGraph -name " + std::string(name));
    return *find(name);
  }

  /// The graph of that scene node; null when it cannot be found by the node's UUID.
  ORV_v1::Container* find(const char* name) {
    const vesk::SceneNodePtr node = session().scene().find(name);
    return node ? ORV_v1::Container::getFromUUID(node->uuid().c_str()) : nullptr;
  }
};

}  // namespace hosttest
