#pragma once

#include <absl/container/flat_hash_set.h>

#include <span>

#include "standalone/graph/storage/LineWords.h"
#include "standalone/graph/storage/UsedDefinitions.h"

namespace orvlib {

class AnnotationObject;
struct WatchPointSetup;

/// Writes the statements of a stored text. docs/graph-format.md describes them.
class GraphWriter {
 public:
  /// The whole text of a graph, by its top node; `runtime` is the runtime's name.
  static std::string graph(const NodeObject& top, std::string_view runtime);

  static std::string content(const CompoundObject& compound);

  static std::string selection(const CompoundObject& level, std::span<NodeObject* const> nodes,
                               std::span<AnnotationObject* const> annotations);

 private:
  using NodeSet = absl::flat_hash_set<const NodeObject*>;

  std::string withHead(std::string_view format, std::string_view runtime) const;

  void begin(std::string_view statement);
  void word(std::string_view text) { addWord(body_, text); }
  void end() { body_ += '\n'; }
  void number(std::uint64_t number);

  void openBlock(std::string_view statement);
  void closeBlock();

  void writeNode(const NodeObject& node);
  void writeMadeNode(const NodeObject& node);
  void writeCompound(const NodeObject& node);
  void writeIoNode(const NodeObject& node);
  void writeAnnotation(const AnnotationObject& annotation);

  void writeStates(const NodeObject& node);
  void writeOwnPorts(const NodeObject& node);
  void writePortOrder(const PortListObject& list, PortDirection direction);
  void writeStatePairs(const NodeObject& node);
  void writePortSettings(const NodeObject& node);
  void writePort(const PortObject& port, std::string& path);
  void writeShared(const PortObject& port, const std::string& path);
  void writeMembers(const PortObject& port, const std::string& path);
  void writeFlags(const PortObject& port, const std::string& path);
  void writeFurtherParameters(const WatchPointSetup& setup);
  void writeWatchPoint(const PortObject& port, const std::string& path);
  void writeMetadata(std::string_view statement, std::string_view path, const Properties& set);

  void writeLevel(const CompoundObject& level);
  void writeWires(const CompoundObject& level);
  void writeWiresFrom(const PortObject& source);
  void writeIncoming(const PortObject& target);

  UsedDefinitions used_;
  std::string body_;
  std::size_t depth_ = 0;

  /// Whether what belongs to the compound's node, and not to what it is, stays out.
  bool bare_ = false;

  /// Null when whole levels are written.
  const NodeSet* chosen_ = nullptr;
};

}  // namespace orvlib
