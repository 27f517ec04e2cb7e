#include "standalone/graph/evaluation/Kernel.h"

#include <algorithm>
#include <unordered_map>

#include "standalone/graph/evaluation/kernels/KernelTables.h"

namespace orvlib {
namespace {

using EntriesByName = std::unordered_map<std::string_view, const KernelEntry*>;

constexpr KernelTable (*kTables[])() = {
    arrayKernels,   colorKernels,  compareKernels,      constantKernels, convertKernels,
    integerKernels, logicKernels,  mathKernels,         matrixKernels,   randomKernels,
    selectKernels,  stringKernels, trigonometryKernels, vectorKernels,
};

EntriesByName collectEntries() {
  EntriesByName entries;
  for (const auto table : kTables) {
    for (const KernelEntry& entry : table()) entries.emplace(entry.name, &entry);
  }
  return entries;
}

const EntriesByName& entriesByName() {
  static const EntriesByName entries = collectEntries();
  return entries;
}

const KernelEntry* findEntry(std::string_view name) {
  const auto found = entriesByName().find(name);
  return found == entriesByName().end() ? nullptr : found->second;
}

bool hasLayout(const PortDescription& port, const PortLayout& layout) {
  const ValueType& type = *port.type;
  return layout == PortLayout{type.scalar, type.componentCount(), type.isArray()};
}

bool fits(const KernelEntry& entry, const std::vector<PortDescription>& ports) {
  const std::size_t inputs = entry.inputs.size();
  if (ports.size() != inputs + entry.outputs.size()) return false;
  for (std::size_t i = 0; i < ports.size(); ++i) {
    const bool isInput = i < inputs;
    const auto direction = isInput ? PortDirection::Input : PortDirection::Output;
    const PortLayout& layout = isInput ? entry.inputs[i] : entry.outputs[i - inputs];
    if (ports[i].direction != direction || !hasLayout(ports[i], layout)) return false;
  }
  return true;
}

}  // namespace

Kernel findKernel(const NodeDescription& definition) {
  const KernelEntry* entry = findEntry(definition.name);
  return entry && fits(*entry, definition.ports) ? entry->kernel : nullptr;
}

Kernel findKernel(std::string_view definitionName) {
  const KernelEntry* entry = findEntry(definitionName);
  return entry ? entry->kernel : nullptr;
}

std::vector<std::string_view> kernelNames() {
  std::vector<std::string_view> names;
  names.reserve(entriesByName().size());
  for (const auto& [name, entry] : entriesByName()) names.push_back(name);
  std::sort(names.begin(), names.end());
  return names;
}

}  // namespace orvlib
