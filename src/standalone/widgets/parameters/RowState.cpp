#include "standalone/widgets/parameters/RowState.h"

#include <algorithm>

#include "standalone/graph/types/Components.h"
#include "standalone/graph/types/ValueText.h"
#include "standalone/widgets/look/Feeding.h"
#include "standalone/widgets/parameters/PortEdits.h"

namespace orvuilib {

using orvlib::PortKind;
using orvlib::PortObject;
using orvlib::PortRef;
using orvlib::Value;

namespace {

/// More are not shown.
constexpr std::size_t kMostSources = 100;

void addSources(RowState& state, const PortObject& port) {
  for (PortObject* source : feedersOf(port, kMostSources)) {
    if (state.sources.size() >= kMostSources) return;
    const auto isSame = [source](const PortRef& known) { return known.get() == source; };
    if (std::ranges::none_of(state.sources, isSame)) state.sources.emplace_back(source);
  }
}

/// Notes which components of two values differ. Arrays are compared as a whole.
void compare(RowState& state, const Value& first, const Value& other) {
  if (state.mixed.size() == 1) {
    if (!state.mixed[0]) state.mixed[0] = !orvlib::sameValue(first, other);
    return;
  }
  for (std::size_t i = 0; i < state.mixed.size(); ++i) {
    if (state.mixed[i]) continue;
    state.mixed[i] =
        !orvlib::sameValue(orvlib::componentsOf(first, i, 1), orvlib::componentsOf(other, i, 1));
  }
}

void readComponentSources(RowState& state, const PortObject& port) {
  const PortObject* face = takingFace(port);
  const auto* children = face && !face->isFanInPort() ? face->madeChildren() : nullptr;
  if (!children) return;
  for (unsigned int i = 0; i < children->count() && i < state.componentSources.size(); ++i) {
    if (PortObject* source = children->at(i)->source()) state.componentSources[i] = PortRef(source);
  }
}

void readPort(RowState& state, const PortObject& port) {
  state.own = state.own || port.ownValue() != nullptr;
  readComponentSources(state, port);
  if (port.valueType().isArray()) state.elements = std::max(state.elements, elementCount(port));
  if (isFed(port)) {
    ++state.connected;
    addSources(state, port);
  } else if (canEdit(port)) {
    state.editable = true;
  }
}

}  // namespace

bool RowState::anyMixed() const {
  return std::ranges::any_of(mixed, [](bool differs) { return differs; });
}

RowState readState(const ParameterRow& row) {
  RowState state;
  const PortObject& first = row.first();
  const bool isArray = row.type().isArray();
  const std::size_t count = isArray ? 1 : row.type().componentCount();
  state.mixed.resize(count);
  state.componentSources.resize(count);
  for (const PortRef& port : row.ports) {
    readPort(state, *port);
    if (port.get() != &first) compare(state, first.unconnectedValue(), port->unconnectedValue());
  }
  if (!isArray) state.texts = valueTexts(first);
  return state;
}

std::size_t elementCount(const PortObject& array) {
  return orvlib::componentCount(array.unconnectedValue()) / array.valueType().componentCount();
}

QStringList valueTexts(const PortObject& port) {
  QStringList texts;
  const auto value = port.settableValue();
  if (!value) return texts;
  for (const std::string& text : orvlib::printValue(*value)) texts.append(toText(text));
  return texts;
}

}  // namespace orvuilib
