#include "standalone/graph/model/ContainerTable.h"

#include "standalone/graph/types/NameMap.h"

namespace orvlib {
namespace {

NameMap<ContainerObject*>& table() {
  static NameMap<ContainerObject*> containers;
  return containers;
}

std::vector<ContainerObject*>& living() {
  static std::vector<ContainerObject*> containers;
  return containers;
}

}  // namespace

void ContainerTable::add(std::string_view uuid, ContainerObject& container) {
  table().insert_or_assign(std::string(uuid), &container);
}

void ContainerTable::remove(std::string_view uuid, const ContainerObject& container) {
  const auto entry = table().find(uuid);
  if (entry != table().end() && entry->second == &container) table().erase(entry);
}

ContainerObject* ContainerTable::find(std::string_view uuid) {
  const auto entry = table().find(uuid);
  return entry == table().end() ? nullptr : entry->second;
}

std::string ContainerTable::uuidOf(const ContainerObject& container) {
  for (const auto& [uuid, entry] : table()) {
    if (entry == &container) return uuid;
  }
  return {};
}

void ContainerTable::enter(ContainerObject& container) { living().push_back(&container); }

void ContainerTable::leave(ContainerObject& container) { std::erase(living(), &container); }

std::vector<ContainerObject*> ContainerTable::all() { return living(); }

}  // namespace orvlib
