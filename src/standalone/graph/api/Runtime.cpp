#include "platform/ORV_1_0/Runtime.h"

#include "standalone/graph/api/GraphAccess.h"
#include "standalone/graph/library/LoadedRuntime.h"
#include "standalone/graph/published/Following.h"

namespace ORV_v1 {

Runtime::Runtime(Rep* rep) : rep_(rep) {}
Runtime::~Runtime() { delete rep_; }

void Runtime::forceRebuildCompounds() { orvlib::rebuildRuntime(*this); }

AddRefWrapper<NodeLibrary> Runtime::getRootLibrary() const {
  return rep_->loaded->content().rootLibrary;
}

unsigned int Runtime::getNumberOfPortTypes() const {
  return static_cast<unsigned int>(rep_->loaded->content().portTypes.size());
}

AddRefWrapper<PortDataType> Runtime::getPortTypeAt(unsigned int index) const {
  const auto& types = rep_->loaded->content().portTypes;
  return index < types.size() ? types[index] : AddRefWrapper<PortDataType>();
}

const char* Runtime::getName() const { return rep_->loaded->description().name.c_str(); }

const char* Runtime::getNiceName() const { return rep_->loaded->description().niceName.c_str(); }

std::unique_ptr<Runtime> GraphAccess::makeRuntime(std::unique_ptr<orvlib::LoadedRuntime> loaded) {
  return std::unique_ptr<Runtime>(new Runtime(new Runtime::Rep{std::move(loaded)}));
}

orvlib::LoadedRuntime& GraphAccess::loaded(const Runtime& runtime) { return *runtime.rep_->loaded; }

}  // namespace ORV_v1
