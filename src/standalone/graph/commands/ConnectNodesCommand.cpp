#include "platform/ORV_1_0/ConnectNodesCommand.h"

#include <vector>

#include "standalone/graph/commands/RecordedCommand.h"
#include "standalone/graph/edits/WireRules.h"
#include "standalone/graph/edits/Wiring.h"

namespace ORV_v1 {
namespace {

using namespace orvlib;

FaultPoint kConnect("ConnectNodesCommand connect");
FaultPoint kDoit("ConnectNodesCommand doit");
FaultPoint kRedo("ConnectNodesCommand redo");
FaultPoint kUndo("ConnectNodesCommand undo");

using Chain = std::vector<NodeRef>;

/// Whether the input can take one more connection from there.
bool isFree(const PortObject& output, const PortObject& input) {
  const bool grows = input.isFanInPort() && !input.hasPeers() && !output.valueType().isArray();
  return grows ? facesMatch(output, input) && canCarry(output, input) : canConnect(output, input);
}

bool isOfTypeOf(const PortObject& output, const PortObject& input) {
  const ValueType& type = input.valueType();
  const std::string& name = output.valueType().name;
  return type.name == name || (input.isFanInPort() && type.element->name == name);
}

struct Pair {
  PortObject* output = nullptr;
  PortObject* input = nullptr;
};

/// The first that are of one type, else the first that convert; null ones when nothing fits.
Pair findPair(const NodeObject& from, const NodeObject& to) {
  Pair converting;
  for (PortObject* output : from.outputList().items()) {
    for (PortObject* input : to.inputList().items()) {
      if (!isFree(*output, *input)) continue;
      if (isOfTypeOf(*output, *input)) return {output, input};
      if (!converting.output) converting = {output, input};
    }
  }
  return converting;
}

bool runChain(Transaction& edits, const Chain& chain) {
  for (std::size_t i = 1; i < chain.size(); ++i) {
    const Pair pair = findPair(*chain[i - 1], *chain[i]);
    if (!pair.output) return false;
    if (!runConnect(edits, *pair.output, *pair.input, Occupied::Refuse)) return false;
  }
  return true;
}

}  // namespace

struct ConnectNodesCommand::Rep {
  GraphLink graph;
  std::vector<Chain> chains;
  RecordedCommand command;
};

ConnectNodesCommand::ConnectNodesCommand() : rep_(new Rep) {}
ConnectNodesCommand::~ConnectNodesCommand() { delete rep_; }

bool ConnectNodesCommand::connect(const NodeList& nodes) {
  if (kConnect.refuses() || rep_->command.isBuilt() || nodes.size() < 2) return false;
  Chain chain;
  for (unsigned int i = 0; i < nodes.size(); ++i) {
    chain.emplace_back(static_cast<NodeObject*>(nodes[i].get()));
  }
  const CompoundObject* level = chain.front()->parent();
  for (const NodeRef& node : chain) {
    if (!level || node->parent() != level) return false;
  }
  if (!rep_->graph.bindOrKeep(chain.front()->container())) return false;
  rep_->chains.push_back(std::move(chain));
  return true;
}

bool ConnectNodesCommand::doit() { return !kDoit.refuses() && redo(); }

bool ConnectNodesCommand::redo() {
  if (rep_->chains.empty()) return !kRedo.refuses();
  return rep_->command.redo(kRedo, rep_->graph.container(), [this](Transaction& edits) {
    for (const Chain& chain : rep_->chains) {
      if (!runChain(edits, chain)) return false;
    }
    return true;
  });
}

bool ConnectNodesCommand::undo() {
  if (rep_->chains.empty()) return !kUndo.refuses();
  return rep_->command.undo(kUndo, rep_->graph.container());
}

}  // namespace ORV_v1
