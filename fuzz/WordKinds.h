#pragma once

#include <cstdint>
#include <span>
#include <string_view>

namespace fuzz {

/// What a word stands for.
enum class WordKind : std::uint8_t {
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
  Text,  // values and properties too
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

/// Words of that kind, odd ones among them; none where it names what is in the scene.
std::span<const char* const> wordsOf(WordKind kind);

/// What an argument of a flag, by its long name, and a positional argument of a command most likely
/// is; `Text` where nobody said.
WordKind kindOfFlagArgument(std::string_view flag, std::size_t argument);
WordKind kindOfPositional(std::string_view command, std::size_t index);

}  // namespace fuzz
