#include "platform/ORV_1_0/Host.h"

#include "standalone/graph/library/RuntimeRegistry.h"

namespace ORV_v1 {

using orvlib::RuntimeRegistry;

Host::Host() = default;
Host::~Host() = default;

unsigned int Host::getNumberOfRuntimes() const {
  const RuntimeRegistry* registry = RuntimeRegistry::current();
  return registry ? registry->size() : 0;
}

Runtime* Host::getRuntimeAt(unsigned int index) const {
  const RuntimeRegistry* registry = RuntimeRegistry::current();
  return registry ? registry->at(index) : nullptr;
}

Runtime* Host::getRuntimeByName(const char* name) const {
  const RuntimeRegistry* registry = RuntimeRegistry::current();
  return registry && name ? registry->find(name) : nullptr;
}

}  // namespace ORV_v1
