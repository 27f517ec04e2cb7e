#include "standalone/widgets/parameters/PortEdits.h"

#include <QHash>
#include <algorithm>
#include <utility>

#include "platform/ORV_1_0/ChangeBracket.h"
#include "platform/ORV_1_0/Host.h"
#include "standalone/graph/model/CompoundObject.h"
#include "standalone/graph/model/ContainerObject.h"
#include "standalone/graph/types/ValueText.h"
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

bool hasValue(const PortValue& wanted) {
  std::vector<std::string> texts;
  for (const QString& text : wanted.texts) texts.push_back(text.toStdString());
  const auto value = orvlib::parseValue(wanted.port->valueType(), texts).value;
  return value && orvlib::sameValue(*value, wanted.port->unconnectedValue());
}

/// For what cannot be reset directly, as an array: by lines that are not kept for undo.
void resetUnrecorded(const std::vector<PortRef>& ports) {
  if (ports.empty()) return;
  const UnrecordedEdits unrecorded;
  for (const PortRef& port : ports) {
    if (canEdit(*port)) hookOf(*port)->resetPortDefaultValues(PortHandle(port.get()));
  }
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

bool isInOpenLevel(const orvlib::NodeObject& node) {
  if (!node.container() || !hookOf(node.core())) return false;
  return !node.parent() || node.parent()->isOpenToEdits();
}

QString readOnlyReason(const orvlib::NodeObject& node) {
  if (!node.container()) return "Read-only: it is in no graph";
  if (!hookOf(node.core())) return "Read-only: nothing here can be edited";
  const orvlib::CompoundObject* level = node.parent();
  for (; level; level = level->node()->parent()) {
    const QString path = toText(level->node()->fullPath());
    if (level->isReference()) return QString("Read-only: %1 is a reference").arg(path);
    if (level->isLocked()) return QString("Read-only: %1 is locked").arg(path);
  }
  return {};
}

bool setPortValues(const std::vector<PortValue>& values, const QString& what) {
  std::vector<PortValue> edits;
  std::ranges::copy_if(values, std::back_inserter(edits),
                       [](const PortValue& value) { return canEdit(*value.port); });
  const UndoStep step(edits.size() > 1, what, containersOf(edits));
  for (const PortValue& edit : edits) {
    if (!canEdit(*edit.port)) continue;
    hookOf(*edit.port)->setPortDefaultValues(PortHandle(edit.port.get()), edit.texts, false);
  }
  return std::ranges::all_of(edits, hasValue);
}

bool resetPortValues(const std::vector<PortRef>& ports, const QString& what) {
  std::vector<PortValue> edits;
  for (const PortRef& port : ports) {
    if (canEdit(*port) && port->root().ownValue()) edits.push_back({port, {}});
  }
  const UndoStep step(edits.size() > 1, what, containersOf(edits));
  for (const PortValue& edit : edits) {
    if (!canEdit(*edit.port)) continue;
    hookOf(*edit.port)->resetPortDefaultValues(PortHandle(edit.port.get()));
  }
  return std::ranges::none_of(edits,
                              [](const PortValue& edit) { return edit.port->root().ownValue(); });
}

LiveEdit::LiveEdit(const std::vector<PortRef>& ports) {
  for (const PortRef& port : ports) {
    if (canEdit(*port)) before_.push_back(read(port));
  }
}

LiveEdit::~LiveEdit() { cancel(); }

LiveEdit::Before LiveEdit::read(const PortRef& port) {
  return {port, valueTexts(*port), port->ownValue() != nullptr};
}

void LiveEdit::follow() {
  if (shown_.empty()) return;
  QHash<const PortObject*, const QStringList*> shown;
  for (const PortValue& value : shown_) shown.insert(value.port.get(), &value.texts);
  for (Before& before : before_) {
    const QStringList* texts = shown.value(before.port.get());
    if (texts && valueTexts(*before.port) != *texts) before = read(before.port);
  }
}

void LiveEdit::show(const std::vector<PortValue>& values) {
  follow();
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
bool LiveEdit::commit(const QString& what) {
  follow();
  const auto brackets = bracketsAround(containersOf(before_));
  const std::vector<PortValue> values = isAsBefore() ? std::vector<PortValue>() : shown_;
  cancel();
  return setPortValues(values, what);
}

void LiveEdit::cancel() {
  if (!shown_.empty()) putBack(before_);
  shown_.clear();
}

/// Never destroyed: edits may end while the program goes down.
std::vector<LiveEdit::Before>& LiveEdit::stranded() {
  static auto& only = *new std::vector<Before>;
  return only;
}

void LiveEdit::putBackStranded() {
  if (stranded().empty()) return;
  std::vector<Before> all = std::exchange(stranded(), {});
  std::erase_if(all, [](const Before& before) { return !before.port->node(); });
  putBack(all);
}

/// A port that had its default shall have it again, and not a value that is equal to it.
void LiveEdit::putBack(const std::vector<Before>& all) {
  const auto brackets = bracketsAround(containersOf(all));
  std::vector<PortRef> defaults;
  for (const Before& before : all) {
    if (!canEdit(*before.port)) {
      stranded().push_back(before);
      continue;
    }
    setDirectly(before.port, before.own ? before.texts : QStringList());
    if (!before.own && before.port->ownValue()) defaults.push_back(before.port);
  }
  resetUnrecorded(defaults);
}

}  // namespace orvuilib
