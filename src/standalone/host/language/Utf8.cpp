#include "standalone/host/language/Utf8.h"

#include <cstdint>
#include <cstring>

namespace vesk::utf8 {
namespace {

bool isContinuation(unsigned char byte) { return (byte & 0xC0) == 0x80; }

/// The length of the valid sequence at the start of `text`, or 0.
std::size_t sequenceLength(std::string_view text) {
  const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(text[i]); };
  const unsigned char lead = byte(0);
  if (lead < 0x80) return 1;
  const std::size_t length = lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : 2;
  if (lead < 0xC2 || lead > 0xF4 || text.size() < length) return 0;
  for (std::size_t i = 1; i < length; ++i) {
    if (!isContinuation(byte(i))) return 0;
  }
  const bool overlong = (lead == 0xE0 && byte(1) < 0xA0) || (lead == 0xF0 && byte(1) < 0x90);
  const bool surrogate = lead == 0xED && byte(1) > 0x9F;
  const bool tooLarge = lead == 0xF4 && byte(1) > 0x8F;
  return overlong || surrogate || tooLarge ? 0 : length;
}

/// Skips whole words of plain ASCII.
std::size_t skipAscii(std::string_view text, std::size_t offset) {
  constexpr std::uint64_t kHighBits = 0x8080808080808080u;
  while (offset + 8 <= text.size()) {
    std::uint64_t word;
    std::memcpy(&word, text.data() + offset, 8);
    if (word & kHighBits) break;
    offset += 8;
  }
  return offset;
}

}  // namespace

std::size_t findInvalid(std::string_view text) {
  std::size_t offset = skipAscii(text, 0);
  while (offset < text.size()) {
    const std::size_t length = sequenceLength(text.substr(offset));
    if (length == 0) return offset;
    offset += length;
    if (length == 1) offset = skipAscii(text, offset);
  }
  return kValid;
}

std::size_t countCharacters(std::string_view text) {
  std::size_t count = 0;
  for (const char c : text) count += !isContinuation(static_cast<unsigned char>(c));
  return count;
}

std::size_t offsetOfCharacter(std::string_view text, std::size_t index) {
  std::size_t offset = 0;
  while (offset < text.size()) {
    if (!isContinuation(static_cast<unsigned char>(text[offset])) && index-- == 0) return offset;
    ++offset;
  }
  return text.size();
}

std::string repaired(std::string_view text) {
  std::string result;
  result.reserve(text.size());
  while (!text.empty()) {
    const std::size_t length = sequenceLength(text);
    if (length == 0) {
      append(result, 0xFFFD);
    } else {
      result.append(text.substr(0, length));
    }
    text.remove_prefix(length == 0 ? 1 : length);
  }
  return result;
}

void append(std::string& text, char32_t character) {
  const auto put = [&](char32_t byte) { text += static_cast<char>(byte); };
  const auto tail = [&](int shift) { put(0x80 | ((character >> shift) & 0x3F)); };
  if (character < 0x80) {
    put(character);
  } else if (character < 0x800) {
    put(0xC0 | (character >> 6));
    tail(0);
  } else if (character < 0x10000) {
    put(0xE0 | (character >> 12));
    tail(6);
    tail(0);
  } else {
    put(0xF0 | (character >> 18));
    tail(12);
    tail(6);
    tail(0);
  }
}

char32_t next(std::string_view text, std::size_t& offset) {
  const auto lead = static_cast<unsigned char>(text[offset++]);
  if (lead < 0x80) return lead;
  int following = lead >= 0xF0 ? 3 : lead >= 0xE0 ? 2 : 1;
  char32_t character = lead & (0x3F >> following);
  while (following-- > 0) character = (character << 6) | (text[offset++] & 0x3F);
  return character;
}

}  // namespace vesk::utf8
