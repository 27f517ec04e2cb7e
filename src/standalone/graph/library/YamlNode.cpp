#include "standalone/graph/library/YamlNode.h"

#include <yaml-cpp/yaml.h>
// The event interface, which <yaml-cpp/yaml.h> leaves out.
#include <yaml-cpp/eventhandler.h>

#include <algorithm>
#include <sstream>

namespace orvlib {
namespace {

constexpr std::size_t kDeepestNesting = 16;
constexpr std::size_t kMostKeys = 32;

Position toPosition(const YAML::Mark& mark) { return {mark.line + 1, mark.column + 1}; }

/// Builds the tree from the parser's events; `open_` holds the collections not yet closed.
class TreeBuilder : public YAML::EventHandler {
 public:
  YamlNode takeRoot() { return std::move(root_); }

  void OnDocumentStart(const YAML::Mark& mark) override {
    if (++documents_ > 1) fail(mark, "the file holds more than one YAML document");
  }
  void OnDocumentEnd() override {}

  void OnNull(const YAML::Mark& mark, YAML::anchor_t anchor) override {
    add(make(YamlNode::Kind::Null, mark, "", anchor));
  }
  void OnAlias(const YAML::Mark& mark, YAML::anchor_t) override {
    fail(mark, "aliases are not allowed in a definition file");
  }
  void OnScalar(const YAML::Mark& mark, const std::string& tag, YAML::anchor_t anchor,
                const std::string& value) override {
    YamlNode node = make(YamlNode::Kind::Scalar, mark, tag, anchor);
    node.text = value;
    add(std::move(node));
  }
  void OnSequenceStart(const YAML::Mark& mark, const std::string& tag, YAML::anchor_t anchor,
                       YAML::EmitterStyle::value) override {
    open(make(YamlNode::Kind::Sequence, mark, tag, anchor));
  }
  void OnSequenceEnd() override { close(); }
  void OnMapStart(const YAML::Mark& mark, const std::string& tag, YAML::anchor_t anchor,
                  YAML::EmitterStyle::value) override {
    open(make(YamlNode::Kind::Mapping, mark, tag, anchor));
  }
  void OnMapEnd() override { close(); }

 private:
  [[noreturn]] static void fail(const YAML::Mark& mark, const std::string& reason) {
    throw DefinitionError(toPosition(mark), reason);
  }

  static YamlNode make(YamlNode::Kind kind, const YAML::Mark& mark, const std::string& tag,
                       YAML::anchor_t anchor) {
    if (anchor != 0) fail(mark, "anchors are not allowed in a definition file");
    // "?" is a plain value and "!" a quoted one; anything else was written as a tag.
    if (!tag.empty() && tag != "?" && tag != "!")
      fail(mark, "the tag '" + tag + "' is not allowed");
    YamlNode node;
    node.kind = kind;
    node.position = toPosition(mark);
    return node;
  }

  void open(YamlNode node) {
    if (open_.size() == kDeepestNesting) {
      throw DefinitionError(node.position, "values are nested too deeply");
    }
    open_.push_back(std::move(node));
  }

  void close() {
    YamlNode node = std::move(open_.back());
    open_.pop_back();
    add(std::move(node));
  }

  void add(YamlNode node) {
    if (open_.empty()) {
      root_ = std::move(node);
      return;
    }
    YamlNode& parent = open_.back();
    const bool isKey =
        parent.kind == YamlNode::Kind::Mapping && parent.keys.size() == parent.items.size();
    if (isKey) checkKey(parent, node);
    // The parser notices a missing value only at what follows: the key is the better place.
    const bool isMissing = !isKey && node.kind == YamlNode::Kind::Null && !parent.keys.empty();
    if (isMissing) node.position = parent.keys.back().position;
    (isKey ? parent.keys : parent.items).push_back(std::move(node));
  }

  static void checkKey(const YamlNode& mapping, const YamlNode& key) {
    if (key.kind != YamlNode::Kind::Scalar) {
      throw DefinitionError(key.position, "a key must be a word");
    }
    if (mapping.keys.size() == kMostKeys) {
      throw DefinitionError(key.position, "a mapping has too many keys");
    }
    const bool taken = std::any_of(mapping.keys.begin(), mapping.keys.end(),
                                   [&](const YamlNode& other) { return other.text == key.text; });
    if (taken) throw DefinitionError(key.position, "the key '" + key.text + "' appears twice");
  }

  YamlNode root_;
  std::vector<YamlNode> open_;
  int documents_ = 0;
};

}  // namespace

YamlNode parseYaml(const std::string& text) {
  try {
    std::istringstream stream(text);
    YAML::Parser parser(stream);
    TreeBuilder builder;
    while (parser.HandleNextDocument(builder)) {
    }
    return builder.takeRoot();
  } catch (const YAML::Exception& error) {
    throw DefinitionError(toPosition(error.mark), "not valid YAML: " + error.msg);
  }
}

}  // namespace orvlib
