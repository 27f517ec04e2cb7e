#include "standalone/widgets/parameters/PortEdits.h"

#include <algorithm>

#include "platform/ORV_1_0/ChangeBracket.h"
#include "platform/ORV_1_0/Host.h"
#include "standalone/graph/model/ContainerObject.h"
#include "standalone/widgets/hooks/HookRegistry.h"
#include "standalone/widgets/parameters/RowState.h"
#include "standalone/widgets/parameters/UndoStep.h"

namespace orvuilib {

using orvlib::ContainerObject;
using orvlib::PortObject;
using orvlib::PortRef;
using PortHandle = ORV_v1::AddRefWrapper<ORV_v1::Port>;

namespace {

orvUI_v1::CommandHook* hookOf(const PortObject& port) {
  return orvuilib::hookOf(port.node()->core());
}

/// Brackets around what is shown together. They are no lines, and so are no steps of undo.
std::vector<ORV_v1::ChangeBracket> bracketsAround(const std::vector<ContainerObject*>& containers) {
  std::vector<ORV_v1::ChangeBracket> brackets;
  for (ContainerObject* container : containers) {
    brackets.push_back(container->makeChangeBracket(nullptr));
  }
  return brackets;
}

template <class Entries>
std::vector<ContainerObject*> containersOf(const Entries& entries) {
  std::vector<ContainerObject*> containers;
  for (const auto& entry : entries) {
    ContainerObject* container = entry.port->node() ? entry.port->node()->container() : nullptr;
    if (container && std::ranges::find(containers, container) == containers.end()) {
      containers.push_back(container);
    }
  }
  return containers;
}

void setDirectly(const PortRef& port, const QStringList& texts) {
  if (canEdit(*port)) hookOf(*port)->setPortDefaultValues(PortHandle(port.get()), texts, true);
}

}  // namespace

orvUI_v1::CommandHook* hookOf(const orvlib::GraphCore& core) {
  return HookRegistry::commandHook(ORV_v1::Host().getRuntimeByName(core.runtime().c_str()));
}

bool canEdit(const PortObject& port) {
  const orvlib::NodeObject* node = port.node();
  if (!node || !node->container() || !port.isSettable() || !hookOf(port)) return false;
  const orvlib::CompoundObject* level = port.isInner() ? node->compound() : node->parent();
  return !level || level->isOpenToEdits();
}

void setPortValues(const std::vector<PortValue>& values, const QString& what) {
  std::vector<PortValue> edits;
  std::ranges::copy_if(values, std::back_inserter(edits),
                       [](const PortValue& value) { return canEdit(*value.port); });
  const UndoStep step(edits.size() > 1, what, containersOf(edits));
  for (const PortValue& edit : edits) {
    if (!canEdit(*edit.port)) continue;
    hookOf(*edit.port)->setPortDefaultValues(PortHandle(edit.port.get()), edit.texts, false);
  }
}

void resetPortValues(const std::vector<PortRef>& ports, const QString& what) {
  std::vector<PortValue> edits;
  for (const PortRef& port : ports) {
    if (canEdit(*port) && port->root().ownValue()) edits.push_back({port, {}});
  }
  const UndoStep step(edits.size() > 1, what, containersOf(edits));
  for (const PortValue& edit : edits) {
    if (!canEdit(*edit.port)) continue;
    hookOf(*edit.port)->resetPortDefaultValues(PortHandle(edit.port.get()));
  }
}

LiveEdit::LiveEdit(const std::vector<PortRef>& ports) {
  for (const PortRef& port : ports) {
    if (!canEdit(*port)) continue;
    before_.push_back({port, valueTexts(*port), port->ownValue() != nullptr});
  }
}

LiveEdit::~LiveEdit() { cancel(); }

void LiveEdit::show(const std::vector<PortValue>& values) {
  const auto brackets = bracketsAround(containersOf(values));
  for (const PortValue& value : values) setDirectly(value.port, value.texts);
  shown_ = values;
}

bool LiveEdit::isAsBefore() const {
  return std::ranges::all_of(
      before_, [](const Before& before) { return valueTexts(*before.port) == before.texts; });
}

/// What is set directly cannot be undone, so the line of the step must find the values from before:
/// its undo leads back to them. A bracket lets nobody see that.
void LiveEdit::commit(const QString& what) {
  const auto brackets = bracketsAround(containersOf(before_));
  const std::vector<PortValue> values = isAsBefore() ? std::vector<PortValue>() : shown_;
  cancel();
  setPortValues(values, what);
}

void LiveEdit::cancel() {
  if (!shown_.empty()) putBack();
  shown_.clear();
}

/// A port that had its default shall have it again, and not a value that is equal to it; only a
/// line does that, one that is not kept for undo.
void LiveEdit::putBack() const {
  const auto brackets = bracketsAround(containersOf(before_));
  std::vector<PortRef> defaults;
  for (const Before& before : before_) {
    if (before.own) {
      setDirectly(before.port, before.texts);
    } else if (canEdit(*before.port)) {
      defaults.push_back(before.port);
    }
  }
  if (defaults.empty()) return;
  const UnrecordedEdits unrecorded;
  for (const PortRef& port : defaults) {
    hookOf(*port)->resetPortDefaultValues(PortHandle(port.get()));
  }
}

}  // namespace orvuilib
