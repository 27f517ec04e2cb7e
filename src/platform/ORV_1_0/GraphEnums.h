#pragma once

#include <cstdint>

namespace ORV_v1 {

/// Which way a port faces: values go into an input and come out of an output. The inner face of a
/// compound's port faces the other way than its outer face.
enum class PortIOType : std::uint32_t { kInput = 0, kOutput = 1 };

/// The two kinds of input/output node of a compound: one shows ports by which values enter the
/// compound, the other ports by which they leave.
enum class NodeFlags : std::uint32_t { kInputNode = 8, kOutputNode = 16 };

/// Bits of a port's flag word. Bits without a name here are kept as they are given.
enum PortFlags : std::uint32_t {
  /// Not shown by the editors.
  kPortHidden = 1,
  /// An input of an array type that grows a member port for each connection to it.
  kPortFanIn = 2,
};

/// What to do with bits of a flag word.
enum class QueryPortFlags : std::uint32_t { kSet = 1, kClear = 2 };

}  // namespace ORV_v1
