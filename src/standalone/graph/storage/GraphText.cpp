#include "standalone/graph/storage/GraphText.h"

#include "standalone/graph/model/ChangeHold.h"
#include "standalone/graph/model/ContainerTable.h"
#include "standalone/graph/storage/GraphReader.h"
#include "standalone/graph/storage/GraphWriter.h"
#include "standalone/graph/storage/SelectionSeal.h"

namespace orvlib {
namespace {

/// How the first line begins, and how many words it has at most.
struct Format {
  std::string_view name;
  std::string_view version = kFormatVersion;
  std::size_t mostWords = 2;
};

constexpr Format kSelectionHead{kSelectionFormat, kSelectionVersion, 4};

/// Reads the first line, and goes to the one after it.
std::optional<StorageError> readFormat(LineWords& lines, const Format& format) {
  const auto error = [&lines](std::string reason) { return StorageError{lines.line(), reason}; };
  if (!lines.next()) return error(lines.problem());
  const auto& words = lines.words();
  if (words[0] != format.name)
    return error("a text of the format " + inQuotes(format.name) + " was expected");
  if (words.size() < 2 || words.size() > format.mostWords || words[1] != format.version) {
    return error("the format version " + inQuotes(words.size() > 1 ? words[1] : "") +
                 " is not known; it should be " + std::string(format.version));
  }
  return std::nullopt;
}

/// Reads the first line of a selection. Nothing of a text that it does not fit is looked at.
std::optional<StorageError> readSeal(LineWords& lines, std::string_view text) {
  if (auto error = readFormat(lines, kSelectionHead)) return error;
  if (text.starts_with(sealOf(text.substr(text.find('\n') + 1)))) return std::nullopt;
  return StorageError{lines.line(), "the text is damaged: it is not what was written"};
}

struct Block {
  GraphReader::Kind kind;
  std::string_view statement;
};

constexpr Block kGraph{GraphReader::Kind::Graph, kGraphBlock};
constexpr Block kContent{GraphReader::Kind::Content, kContentBlock};
constexpr Block kSelection{GraphReader::Kind::Selection, kSelectionBlock};

/// Reads head and block; the line before is the current one.
std::optional<StorageError> readBlock(LineWords lines, const Block& block, CompoundObject& level,
                                      std::vector<IncomingWire>* incoming = nullptr) {
  GraphCore& core = level.node()->core();
  StatedDefinitions stated(core);
  if (std::string problem = stated.read(lines); !problem.empty()) {
    return StorageError{lines.line(), std::move(problem)};
  }
  if (lines.words().size() != 1 || lines.words()[0] != block.statement) {
    return StorageError{lines.line(), "unknown statement " + inQuotes(lines.words()[0])};
  }
  return GraphReader(block.kind, std::move(lines), stated, core).read(level, incoming);
}

std::optional<StorageError> readRuntime(LineWords& lines, std::string& runtime) {
  if (!lines.next()) return StorageError{lines.line(), lines.problem()};
  const auto& words = lines.words();
  if (words.size() != 2 || words[0] != "runtime" || words[1].empty()) {
    return StorageError{lines.line(), "the name of the runtime was expected"};
  }
  runtime = words[1];
  return std::nullopt;
}

std::optional<StorageError> readFrom(LineWords& lines, std::string& uuid) {
  if (!lines.next()) return StorageError{lines.line(), lines.problem()};
  const auto& words = lines.words();
  if (words.size() != 2 || words[0] != kFromStatement) {
    return StorageError{lines.line(), "the graph that the nodes are from was expected"};
  }
  uuid = words[1];
  return std::nullopt;
}

}  // namespace

std::string writeGraph(const ContainerObject& graph) {
  return GraphWriter::graph(graph.top(), graph.core().runtime());
}

std::optional<StorageError> readGraph(std::string_view text, ContainerObject& graph) {
  LineWords lines(text);
  GraphCore::Vocabulary vocabulary;
  if (auto error = readFormat(lines, {kGraphFormat})) return error;
  if (auto error = readRuntime(lines, vocabulary.runtime)) return error;
  GraphCore& core = graph.core();
  core.exchangeVocabulary(vocabulary);
  NodeRef top = NodeFactory(core).makeCompound(graph.top().name());
  if (auto error = readBlock(lines, kGraph, *top->compound())) {
    core.exchangeVocabulary(vocabulary);
    return error;
  }
  const ChangeHold hold(graph);
  graph.replaceTop(std::move(top));
  return std::nullopt;
}

std::string writeContent(const CompoundObject& compound) { return GraphWriter::content(compound); }

std::optional<StorageError> readContent(std::string_view text, CompoundObject& compound) {
  LineWords lines(text);
  if (auto error = readFormat(lines, {kContentFormat})) return error;
  return readBlock(lines, kContent, compound);
}

std::string writeSelection(const CompoundObject& level, std::span<NodeObject* const> nodes,
                           std::span<AnnotationObject* const> annotations) {
  return GraphWriter::selection(level, nodes, annotations);
}

std::optional<StorageError> readSelection(std::string_view text, GraphCore& core,
                                          Selection& selection) {
  LineWords lines(text);
  std::string from;
  if (auto error = readSeal(lines, text)) return error;
  if (auto error = readFrom(lines, from)) return error;
  Selection read{NodeFactory(core).makeCompound("selection"), {}};
  if (auto error = readBlock(lines, kSelection, *read.carrier->compound(), &read.incoming)) {
    return error;
  }
  // In another graph, something else may have the path.
  if (!core.container() || ContainerTable::find(from) != core.container()) {
    for (IncomingWire& wire : read.incoming) wire.source.clear();
  }
  selection = std::move(read);
  return std::nullopt;
}

}  // namespace orvlib
