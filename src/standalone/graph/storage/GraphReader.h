#pragma once

#include <absl/container/flat_hash_map.h>
#include <absl/container/flat_hash_set.h>

#include "standalone/graph/model/Mutator.h"
#include "standalone/graph/storage/GraphText.h"
#include "standalone/graph/storage/StatedDefinitions.h"
#include "standalone/graph/storage/StoredFormat.h"

namespace orvlib {

/// Reads the statements of a stored text into a level. docs/graph-format.md describes them.
class GraphReader {
 public:
  /// What the text holds. Of a graph, the top node's own things are read too.
  enum class Kind { Graph, Content, Selection };

  /// `lines` is at the statement that opens the outermost block.
  GraphReader(Kind kind, LineWords lines, StatedDefinitions& stated, GraphCore& core)
      : kind_(kind), lines_(std::move(lines)), stated_(stated), factory_(core) {}

  /// Reads all up to the end of the text into a level that is empty; `incoming` gets the
  /// connections into a selection. After an error the level is of no use.
  std::optional<StorageError> read(CompoundObject& level, std::vector<IncomingWire>* incoming);

 private:
  /// What the statement before was about.
  enum SubjectKind : unsigned { kNothing = 1, kNode = 2, kCompound = 4, kIo = 8, kNote = 16 };
  static constexpr unsigned kAnything = 31;

  struct Statement;
  using Words = std::vector<std::string_view>;

  /// A node that was made by a definition some of whose ports are not what they were.
  struct Changed {
    const StatedDefinition* definition;
    std::size_t ordinal;
  };

  /// A port that a statement names: null when it cannot be had. When that is because the definition
  /// has changed, the statement is passed over, since all will be read again.
  struct Named {
    PortObject* port;
    bool lost;
  };

  static const Statement* findStatement(std::string_view word);

  bool fail(std::string reason);
  bool readAll();
  bool readStatement();
  bool checkForm(const Statement& statement);
  bool mayStand(const Statement& statement) const;
  bool isHead() const { return levels_.size() == 1 && subject_ == kCompound; }

  // Statements of a level.
  bool readNode();
  bool readCompound();
  bool readEnd();
  bool readIo();
  bool readBackdrop() { return readAnnotation(AnnotationKind::Backdrop); }
  bool readNote() { return readAnnotation(AnnotationKind::StickyNote); }
  bool readAnnotation(AnnotationKind kind);
  bool readWire();
  bool readIncoming();

  // Statements about a node or an annotation.
  bool readState();
  bool readMetadata();
  bool readCompoundMetadata();
  bool readOrigin();
  bool readShow();

  // Statements about ports.
  bool readPort();
  bool readOrder();
  bool readPair();
  bool readFlags();
  bool readMember();
  bool readValue();
  bool readPortMetadata();
  bool readWatch();
  bool readSetup(WatchPointSetup& setup);
  bool readFurtherParameters(std::size_t at, WatchPointSetup& setup);
  bool readWatchMetadata();

  const Words& words() const { return lines_.words(); }
  CompoundObject& level() { return *levels_.back()->compound(); }
  bool isNewName(std::string_view name);
  bool isTooDeep(const NodeObject& node) const;
  NodeRef makeNode(StatedDefinition& definition, std::string name);
  static void makeBare(NodeObject& instance, const StatedDefinition& definition);
  void enter(const NodeRef& node, SubjectKind kind);
  bool connect(PortObject& source, PortObject& target);

  template <class Owner>
  bool addMetadata(Owner& owner, std::size_t keyAt);

  Named subjectPort(std::string_view path);
  Named portOf(NodeObject& node, std::string_view path);
  Named wireEnd(std::string_view path);
  bool notFound(const Named& named, std::string_view path);
  PortObject* portWithInnerLines(std::string_view path) const;
  bool keepInnerLine(PortObject& port);
  bool hasLost(const NodeObject& node, std::string_view port);
  PortObject* ownPort(std::string_view name, PortDirection direction);

  Kind kind_;
  LineWords lines_;
  StatedDefinitions& stated_;
  NodeFactory factory_;
  std::vector<IncomingWire>* incoming_ = nullptr;

  /// The nodes whose levels are open. Each is put into the level around it at its end.
  std::vector<NodeRef> levels_;

  /// What was kept for the inner faces of a placeholder's ports, each by its statement, port and,
  /// of metadata, key.
  absl::flat_hash_set<std::string> innerLines_;
  SubjectKind subject_ = kNothing;
  NodeObject* node_ = nullptr;
  AnnotationObject* note_ = nullptr;
  std::string problem_;

  /// Nodes are numbered as they come, so that a second reading knows them again.
  std::size_t ordinal_ = 0;
  absl::flat_hash_map<const NodeObject*, Changed> changed_;
  absl::flat_hash_set<std::size_t> kept_;  ///< those to keep as placeholders
};

template <class Owner>
bool GraphReader::addMetadata(Owner& owner, std::size_t keyAt) {
  const std::string_view key = words()[keyAt];
  if (key.empty()) return fail("the key of the metadata is empty");
  Properties set;
  Mutator::exchangeMetadata(owner, set);
  const bool twice = set.find(key) != nullptr;
  const auto first = words().begin() + static_cast<std::ptrdiff_t>(keyAt) + 1;
  if (!twice) set.set(key, std::vector<std::string>(first, words().end()));
  Mutator::exchangeMetadata(owner, set);
  return !twice || fail("the metadata " + inQuotes(key) + " comes twice");
}

}  // namespace orvlib
