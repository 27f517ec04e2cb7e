#include "standalone/graph/storage/GraphReader.h"

#include <algorithm>
#include <charconv>

#include "standalone/graph/model/NameRules.h"
#include "standalone/graph/published/Instances.h"
#include "standalone/graph/storage/StoredFormat.h"

namespace orvlib {

struct GraphReader::Statement {
  std::string_view word;

  /// How many words it has at least and at most, itself among them.
  std::size_t least;
  std::size_t most;

  /// What it may follow.
  unsigned subjects;
  bool (GraphReader::*read)();
  std::string_view form;
};

namespace {

constexpr std::size_t kAny = ~std::size_t{0};

/// How many compounds there are at most around what is in a level, the outermost block not counted.
/// What goes through the levels goes through them by calls, for which there must be room.
constexpr std::size_t kDeepestLevel = CompoundObject::kDeepestStored;

std::string tooDeep() {
  return "compounds are nested more than " + std::to_string(kDeepestLevel) + " deep";
}

/// Takes out all that is in a level, with its ports.
void clearLevel(CompoundObject& level) {
  NodeObject& owner = *level.node();
  for (PortListObject* list : {&owner.inputList(), &owner.outputList()}) {
    while (list->count() > 0) {
      PortObject& port = *list->at(list->count() - 1);
      if (port.ioNode()) Mutator::setIoNode(port, nullptr, 0);
      if (port.statePartner()) Mutator::partState(port);
      Mutator::removePort(port);
    }
  }
  while (level.nodes().count() > 0) {
    Mutator::removeNode(*level.nodes().at(level.nodes().count() - 1));
  }
  while (level.annotations().count() > 0) {
    Mutator::removeAnnotation(*level.annotations().at(level.annotations().count() - 1));
  }
  Properties none;
  Mutator::exchangeMetadata(level, none);
}

void clearWatchPoints(PortObject& port) {
  WatchPointRef none;
  if (port.watchPoint()) Mutator::exchangeWatchPoint(port, none);
  PortListObject* children = port.madeChildren();
  if (!children) return;
  for (PortObject* child : children->items()) clearWatchPoints(*child);
}

}  // namespace

const GraphReader::Statement* GraphReader::findStatement(std::string_view word) {
  using R = GraphReader;
  constexpr unsigned kPorted = kNode | kCompound;
  // Those that come most often stand first.
  static constexpr Statement kStatements[] = {
      {"node", 3, 4, kAnything, &R::readNode, "NAME TYPE [NUMBER]"},
      {"value", 2, kAny, kPorted, &R::readValue, "PORT TEXT..."},
      {"wire", 3, 3, kAnything, &R::readWire, "SOURCE TARGET"},
      {"metadata", 3, kAny, kNode | kCompound | kIo | kNote, &R::readMetadata, "KEY VALUE..."},
      {"port", 4, 4, kPorted, &R::readPort, "in|out NAME TYPE"},
      {"member", 3, 3, kPorted, &R::readMember, "PORT NAME"},
      {"end", 1, 1, kAnything, &R::readEnd, ""},
      {"compound", 2, 2, kAnything, &R::readCompound, "NAME"},
      {"port-metadata", 4, kAny, kPorted, &R::readPortMetadata, "PORT KEY VALUE..."},
      {"flags", 2, 5, kPorted, &R::readFlags, "PORT [hidden] [fan-in] [NUMBER]"},
      {"state", 2, 4, kNode | kCompound | kIo, &R::readState, "[disabled] [frozen] [bypassed]"},
      {"io", 3, 3, kAnything, &R::readIo, "in|out NAME"},
      {"show", 2, 2, kIo, &R::readShow, "PORT"},
      {"note", 2, 2, kAnything, &R::readNote, "NAME"},
      {"backdrop", 2, 2, kAnything, &R::readBackdrop, "NAME"},
      {"order", 3, kAny, kNode, &R::readOrder, "in|out PORT..."},
      {"pair", 3, 3, kCompound, &R::readPair, "PORT PORT"},
      {"watch", 4, kAny, kPorted, &R::readWatch, "PORT RECORD LIMIT [off] [NAME VALUE]..."},
      {"watch-metadata", 4, kAny, kPorted, &R::readWatchMetadata, "PORT KEY VALUE..."},
      {"origin", 2, 2, kCompound, &R::readOrigin, "TYPE"},
      {"compound-metadata", 3, kAny, kCompound, &R::readCompoundMetadata, "KEY VALUE..."},
      {"incoming", 3, 3, kAnything, &R::readIncoming, "TARGET PATH"},
  };
  const auto* found = std::ranges::find(kStatements, word, &Statement::word);
  return found == std::end(kStatements) ? nullptr : found;
}

std::optional<StorageError> GraphReader::read(CompoundObject& level,
                                              std::vector<IncomingWire>* incoming) {
  incoming_ = incoming;
  const LineWords start = lines_;
  for (bool again = false; true; again = true) {
    ordinal_ = 0;
    changed_.clear();
    levels_ = {NodeRef(level.node())};
    node_ = level.node();
    note_ = nullptr;
    subject_ = kind_ == Kind::Selection ? kNothing : kCompound;
    if (!readAll()) return StorageError{lines_.line(), problem_};
    if (kept_.empty() || again) return std::nullopt;
    clearLevel(level);
    if (incoming_) incoming_->clear();
    lines_ = start;
  }
}

bool GraphReader::fail(std::string reason) {
  problem_ = std::move(reason);
  return false;
}

bool GraphReader::readAll() {
  while (!levels_.empty()) {
    if (!lines_.next()) return fail(lines_.problem());
    if (!readStatement()) return false;
  }
  if (lines_.isAtEnd()) return true;
  lines_.next();
  return fail("something follows the end");
}

bool GraphReader::readStatement() {
  const Statement* statement = findStatement(words().front());
  if (!statement) return fail("unknown statement " + inQuotes(words().front()));
  return checkForm(*statement) && (this->*statement->read)();
}

bool GraphReader::checkForm(const Statement& statement) {
  if (words().size() < statement.least || words().size() > statement.most) {
    return fail("the form is: " + std::string(statement.word) +
                (statement.form.empty() ? "" : " ") + std::string(statement.form));
  }
  if (mayStand(statement)) return true;
  return fail(inQuotes(statement.word) + " does not belong to what stands before it");
}

bool GraphReader::mayStand(const Statement& statement) const {
  if ((statement.subjects & subject_) == 0) return false;
  if (statement.read == &GraphReader::readIncoming) return incoming_ && levels_.size() == 1;
  if (kind_ != Kind::Content || !isHead()) return true;
  // What a compound is, is nothing of its node.
  return statement.read != &GraphReader::readState &&
         statement.read != &GraphReader::readMetadata && statement.read != &GraphReader::readOrigin;
}

bool GraphReader::isNewName(std::string_view name) {
  if (cleanName(name) != name) return fail(inQuotes(name) + " is no name");
  if (!level().nodes().find(name)) return true;
  return fail("a second node has the name " + inQuotes(name));
}

void GraphReader::enter(const NodeRef& node, SubjectKind kind) {
  Mutator::insertNode(level(), *node, level().nodes().count());
  node_ = node.get();
  subject_ = kind;
  innerLines_.clear();
}

bool GraphReader::readNode() {
  if (!isNewName(words()[1])) return false;
  std::size_t number = 1;
  if (words().size() == 4) {
    const std::string_view text = words()[3];
    const auto read = std::from_chars(text.data(), text.data() + text.size(), number);
    if (read.ec != std::errc() || read.ptr != text.data() + text.size()) {
      return fail(inQuotes(text) + " is no number of a definition");
    }
  }
  StatedDefinition* definition = stated_.find(words()[2], number);
  if (!definition) return fail("the definition " + inQuotes(words()[2]) + " is not stated");
  enter(makeNode(*definition, std::string(words()[1])), kNode);
  return true;
}

/// The levels that are open are not in each other yet.
bool GraphReader::isTooDeep(const NodeObject& node) const {
  const CompoundObject* inside = node.compound();
  const std::size_t above = levels_.size();
  if (!inside) return false;
  return above > kDeepestLevel ||
         !inside->isNoHigherThan(static_cast<unsigned int>(kDeepestLevel - above));
}

NodeRef GraphReader::makeNode(StatedDefinition& definition, std::string name) {
  const std::size_t ordinal = ordinal_++;
  NodeRef node;
  if (definition.current != nullptr && !kept_.contains(ordinal)) {
    node = factory_.make(*definition.current, name);
    if (node != nullptr && isTooDeep(*node)) {
      reportNoInstance(node->core(), node->compound()->origin(), tooDeep());
      node = NodeRef();
    }
  }
  if (node == nullptr) return factory_.makePlaceholder(*definition.stated, std::move(name));
  definition.compareWith(*node);
  if (definition.hasLostPorts()) changed_.emplace(node.get(), Changed{&definition, ordinal});
  if (node->compound()) makeBare(*node, definition);
  return node;
}

void GraphReader::makeBare(NodeObject& instance, const StatedDefinition& definition) {
  Properties none;
  Mutator::exchangeMetadata(instance, none);
  for (const PortDescription& stated : ORV_v1::GraphAccess::describe(*definition.stated).ports) {
    PortObject* port = instance.port(stated.name);
    if (!port || definition.hasLost(stated.name)) continue;
    std::unique_ptr<const Value> unset;
    Properties empty;
    Mutator::exchangeValue(*port, unset);
    Mutator::exchangeMetadata(*port, empty);
    Mutator::setFlags(*port, stated.fanIn ? std::uint32_t{ORV_v1::kPortFanIn} : 0u);
    clearWatchPoints(*port->twin());
  }
}

bool GraphReader::readCompound() {
  if (!isNewName(words()[1])) return false;
  // The outermost level is none that is nested.
  if (levels_.size() > kDeepestLevel) return fail(tooDeep());
  levels_.push_back(factory_.makeCompound(std::string(words()[1])));
  node_ = levels_.back().get();
  subject_ = kCompound;
  return true;
}

bool GraphReader::readEnd() {
  const NodeRef done = std::move(levels_.back());
  levels_.pop_back();
  if (!levels_.empty()) Mutator::insertNode(level(), *done, level().nodes().count());
  subject_ = kNothing;
  return true;
}

bool GraphReader::readIo() {
  const bool input = words()[1] == "in";
  if (!input && words()[1] != "out") return fail(inQuotes(words()[1]) + " is neither in nor out");
  if (!isNewName(words()[2])) return false;
  const NodeKind kind = input ? NodeKind::Input : NodeKind::Output;
  enter(factory_.makeIo(kind, std::string(words()[2])), kIo);
  return true;
}

bool GraphReader::readAnnotation(AnnotationKind kind) {
  const std::string_view name = words()[1];
  if (cleanName(name) != name) return fail(inQuotes(name) + " is no name");
  if (level().annotations().find(name)) {
    return fail("a second annotation has the name " + inQuotes(name));
  }
  const AnnotationRef note(new AnnotationObject(kind, std::string(name)));
  Mutator::insertAnnotation(level(), *note, level().annotations().count());
  note_ = note.get();
  subject_ = kNote;
  return true;
}

bool GraphReader::readState() {
  for (std::size_t i = 1; i < words().size(); ++i) {
    const std::string_view word = words()[i];
    if (word == "disabled" && node_->is(NodeState::Enabled)) {
      Mutator::setState(*node_, NodeState::Enabled, false);
    } else if (word == "frozen" && !node_->is(NodeState::Frozen)) {
      Mutator::setState(*node_, NodeState::Frozen, true);
    } else if (word == "bypassed" && !node_->is(NodeState::Bypassed)) {
      Mutator::setState(*node_, NodeState::Bypassed, true);
    } else {
      return fail(inQuotes(word) + " is no state, or comes twice");
    }
  }
  return true;
}

bool GraphReader::readMetadata() {
  return subject_ == kNote ? addMetadata(*note_, 1) : addMetadata(*node_, 1);
}

bool GraphReader::readCompoundMetadata() { return addMetadata(*node_->compound(), 1); }

bool GraphReader::readOrigin() {
  if (words()[1].empty()) return fail("the origin is empty");
  if (!node_->compound()->origin().empty()) return fail("the origin comes twice");
  Mutator::setOrigin(*node_->compound(), std::string(words()[1]), false);
  return true;
}
}  // namespace orvlib
