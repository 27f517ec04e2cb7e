#include "standalone/graph/Graph.h"

#include "standalone/graph/library/RuntimeRegistry.h"

namespace orvlib {

Graph::Graph(const std::string& runtime) : container_(runtime) {}

std::string Graph::defaultRuntime() {
  constexpr const char* kStandard = "standard";
  const RuntimeRegistry* registry = RuntimeRegistry::current();
  if (!registry || registry->size() == 0 || registry->find(kStandard)) return kStandard;
  return registry->at(0)->getName();
}

}  // namespace orvlib
