#include "standalone/graph/evaluation/Evaluator.h"

#include <algorithm>

#include "standalone/graph/model/DirtyMarks.h"
#include "standalone/graph/model/Mutator.h"
#include "standalone/graph/model/VertexArcs.h"
#include "standalone/graph/types/Conversion.h"

namespace orvlib {
namespace {

/// Whether what flows into the vertex matters to what evaluating it gives.
bool needsSources(const GraphVertex& vertex) {
  if (vertex.watched || !holdsBack(vertex)) return true;
  if (vertex.kind() == GraphVertex::Kind::CompoundPort) return false;
  const auto& node = static_cast<const NodeObject&>(vertex);
  return node.is(NodeState::Enabled) && !(node.cache() && node.cache()->filled);
}

bool isInGraph(GraphVertex& vertex) {
  const NodeObject* node = nodeOf(vertex);
  return node && node->container();
}

/// The port whose value a component is a part of; else the port itself.
PortObject& wholeOf(PortObject& port) {
  return port.kind() == PortKind::Component && port.above() ? *port.above() : port;
}

}  // namespace

Evaluator::Evaluator(ContainerObject& container) : core_(&container.core()) {
  container.addListener(*this);
}

Evaluator::~Evaluator() {
  if (ContainerObject* container = core_->container()) container->removeListener(*this);
}

const Value& Evaluator::value(PortObject& port) {
  beginEvaluation();
  GraphVertex* vertex = port.vertex();
  if (vertex && (!port.isInput() || vertex->watched)) evaluate(*vertex);
  if (port.isInput()) evaluateSources(wholeOf(port));
  return values_.of(port);
}

void Evaluator::step() {
  beginEvaluation();
  std::vector<std::pair<PortObject*, Value>> next;
  for (PortObject* input : core_->stateInputs()) {
    if (isInGraph(*input->vertex())) next.emplace_back(input, stateAfter(*input));
  }
  for (auto& [input, value] : next) {
    const auto& now = static_cast<CompoundPortVertex&>(*input->vertex()).state;
    if (now && sameValue(*now, value)) continue;
    Mutator::setHeldState(*input, std::make_unique<const Value>(std::move(value)));
  }
  evaluateWatched();
}

Value Evaluator::stateAfter(PortObject& stateInput) {
  PortObject& output = *stateInput.statePartner();
  evaluate(*output.vertex());
  const Value& value = static_cast<CompoundPortVertex&>(*output.vertex()).value;
  return convert(value, output.valueType(), stateInput.valueType());
}

void Evaluator::resetState() {
  for (PortObject* input : core_->stateInputs()) {
    const auto& vertex = static_cast<CompoundPortVertex&>(*input->vertex());
    if (vertex.state) Mutator::setHeldState(*input, nullptr);
  }
  evaluateWatched();
}

void Evaluator::graphChanged(ContainerObject&, std::span<const NodeChange>) { evaluateWatched(); }

void Evaluator::beginEvaluation() {
  numbered_ = false;
  values_.release(0);
}

std::uint64_t Evaluator::evaluationNumber() {
  if (!numbered_) ++evaluationCount_;
  numbered_ = true;
  return evaluationCount_;
}

void Evaluator::evaluate(GraphVertex& vertex) {
  open_.push_back(&vertex);
  evaluateOpen();
}

void Evaluator::evaluateSources(PortObject& input) {
  forEachBelow(input, [this](PortObject& port) { open(port); });
  evaluateOpen();
}

void Evaluator::open(PortObject& input) {
  PortObject* source = input.source();
  GraphVertex* vertex = source ? source->vertex() : nullptr;
  if (vertex && vertex->dirty) open_.push_back(vertex);
}

bool Evaluator::openSources(GraphVertex& vertex) {
  if (!needsSources(vertex)) return false;
  const std::size_t before = open_.size();
  forEachPort(vertex, PortDirection::Input, [this](PortObject& port) { open(port); });
  return open_.size() > before;
}

void Evaluator::evaluateOpen() {
  while (!open_.empty()) {
    GraphVertex& next = *open_.back();
    if (next.dirty && openSources(next)) continue;
    open_.pop_back();
    if (next.dirty) compute(next);
  }
}

void Evaluator::compute(GraphVertex& vertex) {
  vertex.dirty = false;
  bool anew = true;
  if (vertex.kind() == GraphVertex::Kind::Node) {
    anew = computeNode(static_cast<NodeObject&>(vertex));
  } else {
    passOn(static_cast<CompoundPortVertex&>(vertex));
  }
  evaluationNumber();
  if (vertex.watched) recordAll(vertex, anew);
}

bool Evaluator::computeNode(NodeObject& node) {
  if (!node.cache_) node.cache_ = std::make_unique<NodeCache>();
  const bool anew = computer_.compute(node, *node.cache_);
  if (anew) ++computedCount_;
  return anew;
}

void Evaluator::passOn(CompoundPortVertex& vertex) {
  if (vertex.state) {
    vertex.value = *vertex.state;
    return;
  }
  const std::size_t before = values_.mark();
  vertex.value = values_.of(vertex.face(PortDirection::Input));
  values_.release(before);
}

void Evaluator::evaluateWatched() {
  beginEvaluation();
  for (GraphVertex* vertex : core_->watches().takeWaiting()) {
    if (!isInGraph(*vertex)) {
      core_->watches().setAside(*vertex);
      continue;
    }
    const auto isEnabled = [](const PortObject* port) {
      return port->watchPoint()->setup().enabled;
    };
    if (std::ranges::none_of(core_->watches().portsOf(*vertex), isEnabled)) continue;
    evaluate(*vertex);
    recordDue(*vertex);
  }
}

void Evaluator::recordAll(GraphVertex& vertex, bool withOutputs) {
  if (!isInGraph(vertex)) return;
  for (PortObject* port : core_->watches().portsOf(vertex)) {
    if (port->isInput() || withOutputs) record(*port);
  }
}

void Evaluator::recordDue(const GraphVertex& vertex) {
  for (PortObject* port : core_->watches().portsOf(vertex)) {
    if (port->watchPoint()->isDue()) record(*port);
  }
}

void Evaluator::record(PortObject& port) {
  WatchPointObject& watchPoint = *port.watchPoint();
  if (!watchPoint.setup().enabled) return;
  const std::size_t before = values_.mark();
  watchPoint.record(evaluationNumber(), values_.of(port));
  values_.release(before);
}

}  // namespace orvlib
