// How requests are recorded, each against the ports as they will be by then.

#include "standalone/graph/api/GraphAccess.h"
#include "standalone/graph/commands/PortEdits.h"
#include "standalone/graph/model/CompoundObject.h"
#include "standalone/graph/model/NameRules.h"
#include "standalone/graph/types/ValueText.h"

namespace orvlib {
namespace {

using ORV_v1::GraphAccess;

constexpr const char* kDefaultName = "port";

bool isText(const char* text) { return text && *text; }

std::optional<Value> valueOf(const TypeRef& type, const ORV_v1::StringArray& texts) {
  return parseValue(*GraphAccess::typeOf(*type), GraphAccess::textsOf(texts)).value;
}

/// Whether it may have ports that its definition does not state.
bool takesPorts(const NodeObject& node) { return node.hasOwnPorts() || node.compound(); }

}  // namespace

bool PortEdits::accepts(NodeObject* node) {
  if (!node || command_.isBuilt()) return false;
  return graph_.bindOrKeep(node->container());
}

bool PortEdits::find(NodeObject* node, const char* name, PortPlan::View& view) {
  return accepts(node) && isText(name) && plan_.find(*node, name, view);
}

bool PortEdits::make(NodeObject* node, PortDirection direction, const char* name, const char* type,
                     const ORV_v1::PortProperties& properties) {
  if (!accepts(node) || !takesPorts(*node) || !name) return false;
  auto make = std::make_unique<Make>();
  make->node = NodeRef(node);
  make->direction = direction;
  make->flags = properties.getFlags();
  make->options = GraphAccess::propertiesOf(properties.options());
  const ORV_v1::OptionalStringArray& texts = properties.defaultValues();
  const std::string_view path = name;
  if (path.find('.') != path.npos) {
    return !texts.isValid() && makeMember(*node, path, std::move(make), type);
  }
  make->type = type ? node->core().findType(type) : TypeRef();
  if (make->type == nullptr) return false;
  if (texts.isValid()) make->value = valueOf(make->type, texts.getValues());
  make->name = path.empty() ? kDefaultName : cleanName(path);
  PortPlan::View view;
  view.type = make->type;
  view.direction = direction;
  view.flags = make->flags;
  view.settable = true;
  const std::string unique = plan_.uniqueName(*node, "", make->name);
  return recordMake(*node, unique, std::move(view), std::move(make));
}

bool PortEdits::makeMember(NodeObject& node, std::string_view path, std::unique_ptr<Make> make,
                           const char* type) {
  const auto dot = path.rfind('.');
  PortPlan::View above;
  if (make->direction != PortDirection::Input || dot + 1 == path.size()) return false;
  if (!plan_.find(node, path.substr(0, dot), above) || !above.isFanInPort()) return false;
  if (isText(type) && node.core().findType(type) == nullptr) return false;
  make->type = node.core().elementType(*GraphAccess::typeOf(*above.type));
  if (make->type == nullptr) return false;
  make->above = above.target;
  make->name = cleanName(path.substr(dot + 1));
  PortPlan::View view;
  view.type = make->type;
  view.flags = make->flags;
  view.member = true;
  const std::string prefix(path.substr(0, dot + 1));
  const std::string name = prefix + plan_.uniqueName(node, prefix, make->name);
  return recordMake(node, name, view, std::move(make));
}

bool PortEdits::recordMake(NodeObject& node, const std::string& path, PortPlan::View view,
                           std::unique_ptr<Make> make) {
  view.target = {.made = makeCount_++};
  plan_.make(node, path, std::move(view));
  requests_.push_back({PlannedPort(), std::move(make)});
  return true;
}

bool PortEdits::remove(NodeObject* node, const char* name) {
  PortPlan::View view;
  if (!find(node, name, view) || view.fixed || !takesPorts(*node)) return false;
  plan_.remove(*node, name);
  return record(view, Remove());
}

bool PortEdits::rename(NodeObject* node, const char* name, const char* newName) {
  PortPlan::View view;
  if (!find(node, name, view) || view.fixed || !takesPorts(*node) || !isText(newName)) return false;
  const std::string clean = cleanName(newName);
  const std::string_view path = name;
  const std::string prefix(path.substr(0, path.rfind('.') + 1));
  if (prefix + clean != path) {
    plan_.rename(*node, name, prefix + plan_.uniqueName(*node, prefix, clean));
  }
  return record(view, Rename{clean});
}

bool PortEdits::move(NodeObject* node, const char* name, unsigned int index) {
  PortPlan::View view;
  if (!find(node, name, view) || !takesPorts(*node)) return false;
  const bool below = std::string_view(name).find('.') != std::string_view::npos;
  return !below && record(view, Move{index});
}

bool PortEdits::show(NodeObject* node, const char* name, const char* ioNode) {
  PortPlan::View view;
  if (!find(node, name, view) || !node->compound() || !isText(ioNode)) return false;
  NodeObject* shows = node->compound()->nodes().find(ioNode);
  const auto kind = view.direction == PortDirection::Input ? NodeKind::Input : NodeKind::Output;
  const bool below = std::string_view(name).find('.') != std::string_view::npos;
  if (below || !shows || shows->nodeKind() != kind) return false;
  return record(view, Show{NodeRef(shows)});
}

bool PortEdits::setType(NodeObject* node, const char* name, const char* type) {
  PortPlan::View view;
  if (!find(node, name, view) || view.fixed || view.member || !type || !takesPorts(*node)) {
    return false;
  }
  TypeRef found = node->core().findType(type);
  if (found == nullptr) return false;
  plan_.retype(*node, name, found);
  return record(view, Retype{std::move(found)});
}

bool PortEdits::setMetadata(NodeObject* node, const char* name, const char* key,
                            const char* value) {
  PortPlan::View view;
  if (!find(node, name, view) || !isText(key)) return false;
  return record(view, NewMetadata{key, value ? value : ""});
}

bool PortEdits::setFlags(NodeObject* node, const char* name, std::uint32_t bits, bool on) {
  PortPlan::View view;
  return find(node, name, view) && record(view, NewFlags{bits, on});
}

bool PortEdits::setFlags(PortObject* port, std::uint32_t bits, bool on) {
  if (!port || !accepts(port->node())) return false;
  PortPlan::View view;
  view.target.port = PortRef(port);
  return record(view, NewFlags{bits, on});
}

bool PortEdits::setValues(NodeObject* node, const char* name, const ORV_v1::StringArray& values,
                          bool interactive) {
  PortPlan::View view;
  if (!find(node, name, view) || !view.settable) return false;
  const bool isArray = GraphAccess::typeOf(*view.type)->isArray();
  if (interactive && values.size() == 0 && !isArray) return record(view, Reset{true});
  std::optional<Value> value = valueOf(view.type, values);
  return value && record(view, NewValue{std::move(*value), interactive});
}

bool PortEdits::resetValues(NodeObject* node, const char* name) {
  PortPlan::View view;
  return find(node, name, view) && view.settable && record(view, Reset{false});
}

}  // namespace orvlib
