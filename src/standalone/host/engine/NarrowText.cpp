#include "standalone/host/engine/NarrowText.h"

#include <langinfo.h>

#include <climits>
#include <cwchar>

#include "standalone/host/language/Utf8.h"

namespace vesk::narrow {
namespace {

/// Reads one character of the locale's encoding; 0 bytes when there is none.
std::size_t readCharacter(std::string_view narrow, char32_t& character) {
  std::mbstate_t state{};
  wchar_t wide = 0;
  const std::size_t length = std::mbrtowc(&wide, narrow.data(), narrow.size(), &state);
  if (length == 0 || length > narrow.size()) return 0;
  character = static_cast<char32_t>(wide);
  return length;
}

template <class OnInvalid>
bool convert(std::string_view narrow, std::string& utf8, OnInvalid goesOn) {
  while (!narrow.empty()) {
    char32_t character = 0;
    const std::size_t length = readCharacter(narrow, character);
    if (length == 0 && !goesOn()) return false;
    utf8::append(utf8, length == 0 ? 0xFFFD : character);
    narrow.remove_prefix(length == 0 ? 1 : length);
  }
  return true;
}

}  // namespace

bool isUtf8() {
  const std::string_view codeset = nl_langinfo(CODESET);
  return codeset == "UTF-8" || codeset == "ANSI_X3.4-1968";
}

std::optional<std::string> toUtf8(std::string_view narrow) {
  if (isUtf8()) {
    if (utf8::findInvalid(narrow) != utf8::kValid) return std::nullopt;
    return std::string(narrow);
  }
  std::string utf8;
  if (!convert(narrow, utf8, [] { return false; })) return std::nullopt;
  return utf8;
}

std::string toUtf8Repaired(std::string_view narrow) {
  if (isUtf8()) return utf8::repaired(narrow);
  std::string utf8;
  convert(narrow, utf8, [] { return true; });
  return utf8;
}

std::string fromUtf8(std::string_view utf8) {
  if (isUtf8()) return std::string(utf8);
  std::string narrow;
  for (std::size_t offset = 0; offset < utf8.size();) {
    std::mbstate_t state{};
    char bytes[MB_LEN_MAX];
    const auto character = static_cast<wchar_t>(utf8::next(utf8, offset));
    const std::size_t length = std::wcrtomb(bytes, character, &state);
    narrow.append(length == static_cast<std::size_t>(-1) ? "?" : std::string(bytes, length));
  }
  return narrow;
}

}  // namespace vesk::narrow
