#include <algorithm>

#include "standalone/graph/evaluation/kernels/Counting.h"
#include "standalone/graph/evaluation/kernels/KernelTables.h"

namespace orvlib {
namespace {

using Many = std::span<const bool>;

std::int32_t countTrue(Many values) {
  return toCount(static_cast<std::size_t>(std::count(values.begin(), values.end(), true)));
}

bool all(Many values) { return std::find(values.begin(), values.end(), false) == values.end(); }
bool any(Many values) { return std::find(values.begin(), values.end(), true) != values.end(); }

constexpr KernelEntry kKernels[] = {
    entry("core::logic::and", [](bool a, bool b) { return a && b; }),
    entry("core::logic::or", [](bool a, bool b) { return a || b; }),
    entry("core::logic::exclusive_or", [](bool a, bool b) { return a != b; }),
    entry("core::logic::not", [](bool value) { return !value; }),
    entry<all>("core::logic::all"),
    entry<any>("core::logic::any"),
    entry<countTrue>("core::logic::count_true"),
};

}  // namespace

KernelTable logicKernels() { return kKernels; }

}  // namespace orvlib
