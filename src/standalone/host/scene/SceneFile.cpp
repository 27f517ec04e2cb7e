#include "standalone/host/scene/SceneFile.h"

#include <charconv>
#include <map>
#include <optional>
#include <unordered_set>

#include "standalone/host/language/Tokenizer.h"
#include "standalone/host/scene/Scene.h"

namespace vesk {
namespace {

constexpr std::string_view kFormatName = "vesk-scene";
constexpr std::string_view kFormatVersion = "1";
constexpr std::size_t kNamesInWarning = 5;

using Fields = std::vector<Token>;

bool readCount(const Token& token, std::size_t& count) {
  const char* end = token.text.data() + token.text.size();
  const auto read = std::from_chars(token.text.data(), end, count);
  return token.kind == TokenKind::Word && read.ec == std::errc() && read.ptr == end;
}

std::string foreignTypeWarning(const std::string& type, const std::vector<std::string>& names) {
  std::string text = "nobody registered the node type " + vesk::quoted(type) + "; kept as stored:";
  for (std::size_t i = 0; i < names.size() && i < kNamesInWarning; ++i) {
    text += (i == 0 ? " " : ", ") + vesk::quoted(names[i]);
  }
  if (names.size() > kNamesInWarning) {
    text += " and " + std::to_string(names.size() - kNamesInWarning) + " more";
  }
  return text;
}

class Reader {
 public:
  Reader(std::string_view text, const NodeTypes& types) : text_(text), types_(types) {}

  SceneText read() {
    if (readHeader()) {
      while (!ended_ && readRecord()) {
      }
    }
    if (!result_.error.empty()) {
      result_.nodes.clear();
      return std::move(result_);
    }
    for (const auto& [type, names] : foreign_) {
      result_.warnings.push_back(foreignTypeWarning(type, names));
    }
    return std::move(result_);
  }

 private:
  bool fail(std::size_t line, std::string_view reason) {
    result_.error = "line " + std::to_string(line) + ": " + std::string(reason);
    return false;
  }
  bool fail(std::string_view reason) { return fail(line_, reason); }

  /// The next line, in its fields; the line must have an end.
  bool readLine(Fields& fields) {
    ++line_;
    if (at_ == text_.size()) return fail("the file ends too early");
    const std::size_t end = text_.find('\n', at_);
    if (end == text_.npos) return fail("the file ends within this line");
    TokenizedText read = tokenize(text_.substr(at_, end - at_));
    at_ = end + 1;
    if (read.error) {
      return fail("column " + std::to_string(read.error->column) + ": " + read.error->reason);
    }
    if (read.statements.size() != 1) return fail("one record was expected");
    fields = std::move(read.statements.front().tokens);
    return true;
  }

  bool readHeader() {
    Fields fields;
    if (!readLine(fields)) return false;
    if (fields.size() != 2 || fields[0].text != kFormatName) return fail("this is no scene file");
    if (fields[1].text == kFormatVersion) return true;
    return fail("the format version " + vesk::quoted(fields[1].text) +
                " is not known; it should be " + std::string(kFormatVersion));
  }

  bool readRecord() {
    Fields fields;
    if (!readLine(fields)) return false;
    if (fields[0].text == "node") return readNode(fields);
    if (fields[0].text == "end") return readEnd(fields);
    return fail("unknown record " + vesk::quoted(fields[0].text));
  }

  bool readNode(Fields& fields) {
    std::size_t bytes = 0;
    if (fields.size() != 5 || fields[1].kind != TokenKind::Quoted ||
        fields[2].kind != TokenKind::Quoted || fields[3].kind != TokenKind::Quoted) {
      return fail("a node needs type, name and UUID in quotes and a count of bytes");
    }
    if (!readCount(fields[4], bytes)) {
      return fail(vesk::quoted(fields[4].text) + " is no count of bytes");
    }
    if (!checkIdentity(fields[1].text, fields[2].text, fields[3].text)) return false;
    const std::size_t firstLine = bytes == 0 ? line_ : line_ + 1;
    std::string_view data;
    if (!readData(bytes, data)) return false;
    auto payload = makePayload(fields[1].text, fields[2].text, data, firstLine);
    if (!payload) return false;
    result_.nodes.push_back(
        std::make_shared<SceneNode>(std::move(fields[1].text), std::move(fields[2].text),
                                    std::move(fields[3].text), std::move(*payload)));
    return true;
  }

  bool checkIdentity(const std::string& type, const std::string& name, const std::string& uuid) {
    if (type.empty()) return fail("the node type is empty");
    if (!isNodeName(name)) return fail(vesk::quoted(name) + " is no node name");
    if (!SceneNode::isUuid(uuid)) return fail(vesk::quoted(uuid) + " is no UUID");
    if (!names_.insert(name).second)
      return fail("a second node has the name " + vesk::quoted(name));
    if (!uuids_.insert(uuid).second)
      return fail("a second node has the UUID " + vesk::quoted(uuid));
    return true;
  }

  /// The bytes of a node's data, which a line end follows. No bytes: no line end either.
  bool readData(std::size_t bytes, std::string_view& data) {
    if (bytes == 0) return true;
    const std::size_t rest = text_.size() - at_;
    if (bytes >= rest) {
      return fail(std::to_string(bytes) + " bytes of data and a line end were expected, " +
                  std::to_string(rest) + " bytes follow");
    }
    data = text_.substr(at_, bytes);
    at_ += bytes;
    for (const char c : data) line_ += c == '\n';
    ++line_;
    if (text_[at_] != '\n') return fail("a line end was expected behind the data");
    ++at_;
    return true;
  }

  /// Nothing after an error; a null payload for a type without data.
  std::optional<std::unique_ptr<NodePayload>> makePayload(const std::string& type,
                                                          const std::string& name,
                                                          std::string_view data,
                                                          std::size_t firstLine) {
    const NodeType* known = types_.find(type);
    std::unique_ptr<NodePayload> payload;
    if (!known) {
      payload = std::make_unique<ForeignPayload>();
      foreign_[type].push_back(name);
    } else if (known->makePayload) {
      payload = known->makePayload();
    }
    if (!payload && !data.empty()) {
      fail(firstLine, "a node of type " + vesk::quoted(type) + " has no data");
      return {};
    }
    if (!payload) return payload;
    if (const std::optional<TextError> error = payload->load(data)) {
      fail(firstLine + error->line - 1,
           "data of node " + vesk::quoted(name) + ": " + error->reason);
      return {};
    }
    return payload;
  }

  bool readEnd(const Fields& fields) {
    std::size_t count = 0;
    if (fields.size() != 2 || !readCount(fields[1], count)) {
      return fail("the end needs a count of nodes");
    }
    if (count != result_.nodes.size()) {
      return fail("the end counts " + std::to_string(count) + " nodes, the file holds " +
                  std::to_string(result_.nodes.size()));
    }
    if (at_ != text_.size()) return fail(line_ + 1, "something follows the end");
    ended_ = true;
    return true;
  }

  std::string_view text_;
  const NodeTypes& types_;
  std::size_t at_ = 0;
  std::size_t line_ = 0;  ///< the one read last
  bool ended_ = false;
  std::unordered_set<std::string> names_;
  std::unordered_set<std::string> uuids_;
  std::map<std::string, std::vector<std::string>> foreign_;  ///< names by type
  SceneText result_;
};

}  // namespace

std::string writeSceneText(const Scene& scene) {
  std::string text = std::string(kFormatName) + " " + std::string(kFormatVersion) + "\n";
  for (const auto& [place, node] : scene.nodes()) {
    const std::string data = node->payload() ? node->payload()->save() : std::string();
    text += "node " + vesk::quoted(node->type()) + " " + vesk::quoted(node->name()) + " " +
            vesk::quoted(node->uuid()) + " " + std::to_string(data.size()) + "\n";
    if (!data.empty()) text.append(data) += '\n';
  }
  return text + "end " + std::to_string(scene.size()) + "\n";
}

SceneText readSceneText(std::string_view text, const NodeTypes& types) {
  return Reader(text, types).read();
}

}  // namespace vesk
