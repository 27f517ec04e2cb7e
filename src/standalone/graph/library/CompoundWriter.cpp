#include "standalone/graph/library/CompoundWriter.h"

#include <algorithm>

#include "standalone/graph/types/ValueText.h"

namespace orvlib {
namespace {

constexpr const char* kIndent = "  ";

/// A text in double quotes, on one line.
std::string quoted(std::string_view text) {
  constexpr char kDigits[] = "0123456789abcdef";
  std::string result = "\"";
  for (const char c : text) {
    const auto code = static_cast<unsigned char>(c);
    if (c == '"' || c == '\\') {
      (result += '\\') += c;
    } else if (c == '\n') {
      result += "\\n";
    } else if (code < 0x20 || code == 0x7f) {
      ((result += "\\x") += kDigits[code >> 4]) += kDigits[code & 15];
    } else {
      result += c;
    }
  }
  return result += '"';
}

/// Whether each character comes back from a block as it is, and so do the line ends.
bool fitsBlock(std::string_view text) {
  const auto isPlain = [](char c) {
    const auto code = static_cast<unsigned char>(c);
    return (code >= 0x20 && code != 0x7f) || c == '\n' || c == '\t';
  };
  return text.size() > 1 && text.front() != '\n' && text.back() == '\n' &&
         text[text.size() - 2] != '\n' && std::ranges::all_of(text, isPlain) &&
         text.find("\xc2\x85") == text.npos && text.find("\xe2\x80\xa8") == text.npos &&
         text.find("\xe2\x80\xa9") == text.npos;
}

std::string block(std::string_view text) {
  // The number says how far the lines are indented, as the first may begin with blanks itself.
  std::string result = "|2\n";
  while (!text.empty()) {
    const auto end = text.find('\n');
    const std::string_view line = text.substr(0, end);
    if (!line.empty()) (result += kIndent) += line;
    result += '\n';
    text.remove_prefix(end + 1);
  }
  return result;
}

std::string contentText(std::string_view text) {
  return fitsBlock(text) ? block(text) : quoted(text) + '\n';
}

std::string valueList(const Value& value) {
  std::string result = "[";
  for (const std::string& text : printValue(value)) {
    if (result.size() > 1) result += ", ";
    result += quoted(text);
  }
  return result += ']';
}

std::string portText(const PortDescription& port) {
  std::string result = "  - {name: " + port.name + ", type: " + quoted(port.type->name);
  if (port.direction == PortDirection::Input) {
    result += ", default: " + valueList(port.defaultValue);
    if (port.fanIn) result += ", fanIn: true";
  }
  return result + ", description: " + quoted(port.description) + "}\n";
}

std::string portList(const NodeDescription& node, const char* key, PortDirection direction) {
  std::string result;
  for (const PortDescription& port : node.ports) {
    if (port.direction == direction) result += portText(port);
  }
  return result.empty() ? result : std::string(key) + ":\n" + result;
}

}  // namespace

std::string writeCompound(const NodeDescription& node) {
  return "compound: " + node.name + "\nniceName: " + quoted(node.niceName) +
         "\ndescription: " + quoted(node.description) + '\n' +
         portList(node, "inputs", PortDirection::Input) +
         portList(node, "outputs", PortDirection::Output) + "content: " + contentText(node.content);
}

}  // namespace orvlib
