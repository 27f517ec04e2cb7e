#include "standalone/graph/commands/PortPlan.h"

#include <algorithm>

#include "standalone/graph/api/GraphAccess.h"
#include "standalone/graph/model/GraphCore.h"
#include "standalone/graph/model/NameRules.h"

namespace orvlib {
namespace {

PortPlan::View viewOf(PortObject& port) {
  PortPlan::View view;
  view.target.port = PortRef(&port);
  view.type = port.type();
  view.direction = port.direction();
  view.flags = port.flags();
  view.fixed = port.isFixed();
  view.member = port.kind() == PortKind::Member;
  view.settable = port.isSettable();
  return view;
}

void extend(std::string& path, std::string_view name) {
  if (!path.empty()) path += '.';
  path += name;
}

}  // namespace

bool PortPlan::View::isFanInPort() const {
  return (flags & ORV_v1::kPortFanIn) && direction == PortDirection::Input &&
         ORV_v1::GraphAccess::typeOf(*type)->isArray();
}

PortPlan::Changes& PortPlan::changes() {
  if (!changes_) changes_ = std::make_unique<Changes>();
  return *changes_;
}

bool PortPlan::find(NodeObject& node, std::string_view path, View& view) const {
  if (changes_) return findBelow(node, path, view);
  PortObject* port = node.portAt(path);
  if (port) view = viewOf(*port);
  return port != nullptr;
}

bool PortPlan::findTop(NodeObject& node, const std::string& path, View& view) const {
  const auto entry = changes_->ports.find(Key(&node, path));
  if (entry != changes_->ports.end()) {
    if (entry->second) view = *entry->second;
    return entry->second != nullptr;
  }
  PortObject* port = node.port(path);
  if (port) view = viewOf(*port);
  return port != nullptr;
}

bool PortPlan::findBelow(NodeObject& node, std::string_view path, View& view) const {
  auto end = std::min(path.find('.'), path.size());
  if (!findTop(node, std::string(path.substr(0, end)), view)) return false;
  while (end < path.size()) {
    const auto begin = end + 1;
    const auto next = std::min(path.find('.', begin), path.size());
    if (!descend(node, path.substr(0, end), path.substr(begin, next - begin), view)) return false;
    end = next;
  }
  return true;
}

/// From the port of the path `top` to its child.
bool PortPlan::descend(NodeObject& node, std::string_view top, std::string_view name,
                       View& view) const {
  std::string path(top);
  extend(path, name);
  const auto entry = changes_->ports.find(Key(&node, path));
  if (entry != changes_->ports.end()) {
    if (entry->second) view = *entry->second;
    return entry->second != nullptr;
  }
  if (view.isFanInPort()) {
    PortObject* above = view.target.below.empty() ? view.target.port.get() : nullptr;
    PortObject* member = above ? above->child(name) : nullptr;
    if (!member || !above->isFanInPort()) return false;
    view = viewOf(*member);
    return true;
  }
  const auto& type = ORV_v1::GraphAccess::typeOf(*view.type);
  if (std::ranges::find(type->components, name) == type->components.end()) return false;
  extend(view.target.below, name);
  view.type = node.core().componentType(*type);
  view.fixed = true;
  view.member = false;
  view.flags = 0;
  return view.type != nullptr;
}

std::string PortPlan::uniqueName(NodeObject& node, const std::string& above,
                                 std::string_view wanted) {
  const std::string clean = cleanName(wanted);
  if (!changes_ && above.empty()) return node.uniquePortName(clean);
  View view;
  if (!find(node, above + clean, view)) return clean;
  const std::string base = numberedName(clean).base;
  std::uint64_t& number =
      changes().nextNumbers.try_emplace(Key(&node, above + base), 1).first->second;
  while (find(node, above + base + std::to_string(number), view)) ++number;
  return base + std::to_string(number);
}

void PortPlan::make(NodeObject& node, const std::string& path, View view) {
  changes().ports[Key(&node, path)] = std::make_unique<View>(std::move(view));
}

void PortPlan::rename(NodeObject& node, const std::string& path, const std::string& newPath) {
  View view;
  if (!find(node, path, view)) return;
  changes().nextNumbers.clear();
  changes().ports[Key(&node, path)] = nullptr;
  changes().ports[Key(&node, newPath)] = std::make_unique<View>(std::move(view));
}

void PortPlan::remove(NodeObject& node, const std::string& path) {
  changes().nextNumbers.clear();
  changes().ports[Key(&node, path)] = nullptr;
}

void PortPlan::retype(NodeObject& node, const std::string& path, TypeRef type) {
  View view;
  if (!find(node, path, view)) return;
  view.type = std::move(type);
  changes().ports[Key(&node, path)] = std::make_unique<View>(std::move(view));
}

}  // namespace orvlib
