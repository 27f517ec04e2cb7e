#include "standalone/graph/published/Following.h"

#include "standalone/graph/library/RuntimeRegistry.h"
#include "standalone/graph/model/ChangeHold.h"
#include "standalone/graph/model/ContainerTable.h"
#include "standalone/graph/published/FormerContent.h"
#include "standalone/graph/published/Instances.h"

namespace orvlib {
namespace {

using ORV_v1::GraphAccess;
using DescriptionPtr = std::shared_ptr<const NodeDescription>;

NameMap<DescriptionPtr> compoundsOf(const LoadedRuntime& runtime) {
  NameMap<DescriptionPtr> compounds;
  for (const auto& [name, definition] : runtime.content().nodesByName) {
    DescriptionPtr description = GraphAccess::sharedDescription(*definition);
    if (!description->content.empty()) compounds.emplace(name, std::move(description));
  }
  return compounds;
}

ChangedCompounds changedSince(const NameMap<DescriptionPtr>& former, const LoadedRuntime& runtime) {
  ChangedCompounds changed;
  for (const auto& [name, description] : compoundsOf(runtime)) {
    const auto before = former.find(name);
    const bool same = before != former.end() && before->second->content == description->content;
    if (!same) changed.emplace(name, runtime.compoundFile(name));
  }
  return changed;
}

/// The outermost references to these in a graph: those inside one come anew with it.
std::vector<CompoundRef> referencesIn(const ContainerObject& graph,
                                      const ChangedCompounds& changed) {
  std::vector<CompoundRef> found;
  std::vector<CompoundObject*> open{graph.top().compound()};
  while (!open.empty()) {
    CompoundObject* level = open.back();
    open.pop_back();
    if (level->isReference() && changed.contains(level->origin())) {
      found.emplace_back(level);
      continue;
    }
    for (NodeObject* node : level->nodes().items()) {
      if (node->compound()) open.push_back(node->compound());
    }
  }
  return found;
}

class Follower {
 public:
  Follower(CompoundObject& compound, const ChangedCompounds& changed, Diagnostics& diagnostics)
      : compound_(compound),
        file_(changed.find(compound.origin())->second),
        diagnostics_(diagnostics) {}

  void follow() {
    const auto definition = offeredOrigin(compound_);
    const NodeRef instance = definition == nullptr
                                 ? NodeRef()
                                 : makeInstance(compound_.node()->core(), *definition, "instance");
    const bool fits = instance != nullptr && mayHold(compound_, *instance->compound());
    if (!fits || !run(*instance)) tell("stays as it was, as it cannot follow");
  }

 private:
  bool run(NodeObject& instance) {
    TakenLevel former;
    TakenLevel fresh;
    LostWires lost;
    Transaction edits;
    const bool done = takeLevel(edits, compound_, former) &&
                      takeLevel(edits, *instance.compound(), fresh) &&
                      putLevel(edits, compound_, fresh, lost);
    if (!done) edits.rollback();
    if (!done) return false;
    for (LostWire& wire : lost) {
      tell("lost the connection " + wire.text + " by following");
      if (compound_.former()) compound_.former()->lost.push_back(std::move(wire));
    }
    return true;
  }

  void tell(const std::string& what) {
    diagnostics_.push_back({file_, 0, 0,
                            "the compound '" + compound_.node()->fullPath() + "' " + what + " '" +
                                compound_.origin() + "'"});
  }

  CompoundObject& compound_;
  const std::string& file_;
  Diagnostics& diagnostics_;
};

}  // namespace

Diagnostics followDefinitions(std::string_view runtime, const ChangedCompounds& changed) {
  Diagnostics diagnostics;
  if (changed.empty()) return diagnostics;
  for (ContainerObject* graph : ContainerTable::all()) {
    if (graph->core().runtime() != runtime) continue;
    const ChangeHold hold(*graph);
    for (const CompoundRef& reference : referencesIn(*graph, changed)) {
      Follower(*reference, changed, diagnostics).follow();
    }
  }
  return diagnostics;
}

void rebuildRuntime(ORV_v1::Runtime& runtime) {
  LoadedRuntime& loaded = GraphAccess::loaded(runtime);
  const auto former = compoundsOf(loaded);
  Diagnostics diagnostics = loaded.rebuild();
  const Diagnostics ofGraphs =
      followDefinitions(loaded.description().name, changedSince(former, loaded));
  diagnostics.insert(diagnostics.end(), ofGraphs.begin(), ofGraphs.end());
  if (const auto* registry = RuntimeRegistry::current()) registry->report(diagnostics);
}

}  // namespace orvlib
