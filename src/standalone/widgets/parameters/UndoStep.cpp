#include "standalone/widgets/parameters/UndoStep.h"

#include "standalone/widgets/hooks/HookRegistry.h"
#include "standalone/widgets/parameters/PortEdits.h"

namespace orvuilib {

UndoStep::UndoStep(bool several, const QString& what,
                   std::vector<orvlib::ContainerObject*> graphs) {
  auto* services = HookRegistry::appServicesHook();
  if (!several) return;
  hasChunk_ = services != nullptr;
  if (hasChunk_) services->openUndoChunk(what);
  graphs_ = std::move(graphs);
  for (orvlib::ContainerObject* graph : graphs_) {
    if (auto* hook = hookOf(graph->core())) hook->openChangeBracket(graph);
  }
}

UndoStep::~UndoStep() {
  for (auto graph = graphs_.rbegin(); graph != graphs_.rend(); ++graph) {
    if (auto* hook = hookOf((*graph)->core())) hook->closeChangeBracket(*graph);
  }
  auto* services = HookRegistry::appServicesHook();
  if (hasChunk_ && services) services->closeUndoChunk();
}

UnrecordedEdits::UnrecordedEdits() {
  if (auto* services = HookRegistry::appServicesHook()) services->setUndoSuspended(true);
}

UnrecordedEdits::~UnrecordedEdits() {
  if (auto* services = HookRegistry::appServicesHook()) services->setUndoSuspended(false);
}

}  // namespace orvuilib
