#pragma once

#include <cstdint>
#include <string_view>

namespace fuzz {

/// What a word stands for.
enum class WordKind : std::uint8_t {
  Any,
  SceneNode,
  Graph,
  Compound,  // paths
  Node,
  Port,
  Source,
  Destination,
  NodeName,  // names in the level
  NodeNames,
  PortName,
  PortOfLevel,
  Annotation,
  NewName,
  NodeType,
  DataType,
  Key,
  Text,
  Values,
  Properties,
  Published,
  Library,
  Runtime,
  SceneType,
  State,
  Parameter,
  File,
  Module,
  Command,
  Last
};

/// What an argument of a flag, by its long name, and a positional argument of a command most likely
/// is; `Any` where nobody said.
WordKind kindOfFlagArgument(std::string_view flag, std::size_t argument);
WordKind kindOfPositional(std::string_view command, std::size_t index);

}  // namespace fuzz
