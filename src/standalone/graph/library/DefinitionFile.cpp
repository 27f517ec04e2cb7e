#include "standalone/graph/library/DefinitionFile.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <fstream>

namespace orvlib {
namespace {

constexpr std::uintmax_t kLargestFile = 4ULL * 1024 * 1024;
constexpr const char* kTooLarge = "the file is larger than 4 MiB";

std::string readBytes(const std::filesystem::path& file) {
  std::error_code error;
  if (!std::filesystem::is_regular_file(file, error)) {
    throw DefinitionError(
        {}, error ? "the file cannot be read: " + error.message() : "this is not a regular file");
  }
  const auto size = std::filesystem::file_size(file, error);
  if (!error && size > kLargestFile) {
    throw DefinitionError({}, kTooLarge);
  }
  std::ifstream stream(file, std::ios::binary);
  std::string bytes(error ? 0 : size, '\0');
  if (!stream || !stream.read(bytes.data(), static_cast<std::streamsize>(bytes.size()))) {
    throw DefinitionError({}, std::string("the file cannot be read: ") + std::strerror(errno));
  }
  return bytes;
}

/// Whether a character of three or four bytes needs as many, lies in Unicode and is no surrogate.
bool isShortestForm(std::string_view text) {
  const auto lead = static_cast<unsigned char>(text[0]);
  const auto second = static_cast<unsigned char>(text[1]);
  switch (lead) {
    case 0xe0:
      return second >= 0xa0;
    case 0xed:
      return second < 0xa0;
    case 0xf0:
      return second >= 0x90;
    case 0xf4:
      return second < 0x90;
    default:
      return true;
  }
}

/// Bytes of the UTF-8 character at the start of `text`; 0 when they are no character of a text
/// file.
std::size_t characterLength(std::string_view text) {
  const auto lead = static_cast<unsigned char>(text.front());
  if (lead < 0x20) return lead == '\n' || lead == '\t' || lead == '\r' ? 1 : 0;
  if (lead < 0x80) return lead == 0x7f ? 0 : 1;
  const std::size_t length = lead >= 0xf0 ? 4 : lead >= 0xe0 ? 3 : 2;
  if (lead < 0xc2 || lead > 0xf4 || text.size() < length || !isShortestForm(text)) return 0;
  const auto isContinuation = [](char c) { return (static_cast<unsigned char>(c) >> 6) == 2; };
  return std::all_of(text.begin() + 1, text.begin() + length, isContinuation) ? length : 0;
}

Position positionOf(std::string_view text, std::size_t offset) {
  const std::string_view before = text.substr(0, offset);
  const auto lineStart = before.rfind('\n') + 1;
  return {static_cast<int>(std::count(before.begin(), before.end(), '\n')) + 1,
          static_cast<int>(offset - lineStart) + 1};
}

void checkIsText(std::string_view bytes) {
  for (std::size_t offset = 0; offset < bytes.size();) {
    const std::size_t length = characterLength(bytes.substr(offset));
    if (length == 0) throw DefinitionError(positionOf(bytes, offset), "this is not UTF-8 text");
    offset += length;
  }
}

}  // namespace

YamlNode readDefinitionFile(const std::filesystem::path& file) {
  return parseDefinition(readBytes(file));
}

YamlNode parseDefinition(const std::string& text) {
  if (text.size() > kLargestFile) throw DefinitionError({}, kTooLarge);
  checkIsText(text);
  YamlNode root = parseYaml(text);
  if (root.kind == YamlNode::Kind::Null) throw DefinitionError({}, "the file is empty");
  return root;
}

}  // namespace orvlib
