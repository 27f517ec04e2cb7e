#pragma once

#include <span>
#include <vector>

#include "standalone/graph/library/NodeDescription.h"

namespace orvlib {

/// What a kernel works on: the ports of its definition, in order.
struct KernelCall {
  /// One value an input, of the very layout of the input's type (see `hasSameLayout`).
  std::span<const Value* const> inputs;

  /// One an output. What they hold before is overwritten, and its storage used again; afterwards
  /// each has the layout of its output's type. None may be one of the inputs.
  std::span<Value> outputs;
};

/// Computes the outputs of a kind of node from its inputs. A kernel depends on nothing else, may
/// run in several threads at once, and takes any value: it never throws (but for a lack of memory)
/// and always fills its outputs.
using Kernel = void (*)(const KernelCall&);

/// No array or text that a kernel makes is larger: a larger one comes out empty. The size of an
/// array is the number of its components, that of a text its bytes, and that of an array of texts
/// the number of its elements plus the bytes of all.
inline constexpr std::size_t kMaxResultSize = std::size_t{1} << 24;

/// The kernel of a definition, looked up by its name. Null when there is none, or when the
/// definition's ports do not have the layouts that the kernel works on. Ask once a node and keep
/// the answer: kernels live as long as the library.
ORV_EXPORT Kernel findKernel(const NodeDescription& definition);

/// The same by name alone ("core::math::add"), for callers that know the ports to be those of the
/// standard runtime.
ORV_EXPORT Kernel findKernel(std::string_view definitionName);

/// The names of all definitions that have a kernel, sorted.
ORV_EXPORT std::vector<std::string_view> kernelNames();

}  // namespace orvlib
