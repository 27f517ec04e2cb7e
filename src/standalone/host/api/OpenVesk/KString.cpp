#include "platform/OpenVesk/KString.h"

#include <algorithm>
#include <string_view>
#include <utility>

#include "standalone/host/engine/HostAccess.h"
#include "standalone/host/engine/NarrowText.h"
#include "standalone/host/language/Utf8.h"

VESK_API_OPEN

namespace {

constexpr int kFormatPositions = 10;

std::string_view view(const char* text) { return text ? std::string_view(text) : ""; }

/// Reads `^1s` to `^10s` at the start of `text`: its size in bytes and number, or {0, 0}.
std::pair<std::size_t, int> readPosition(std::string_view text) {
  std::size_t end = 1;
  int number = 0;
  while (end < text.size() && end < 3 && text[end] >= '0' && text[end] <= '9') {
    number = number * 10 + (text[end++] - '0');
  }
  const bool leadsWithZero = text.size() > 1 && text[1] == '0';
  const bool complete = end < text.size() && text[end] == 's';
  if (!complete || leadsWithZero || number < 1 || number > kFormatPositions) return {0, 0};
  return {end + 1, number};
}

}  // namespace

const KString KString::argUnused("^");

KString::KString() = default;

KString::KString(const char* narrow) { *this = narrow; }

KString::KString(const KString& other) : rep_(other.rep_) {
  if (rep_) rep_->references.fetch_add(1, std::memory_order_relaxed);
}

KString::~KString() {
  if (rep_ && rep_->references.fetch_sub(1, std::memory_order_acq_rel) == 1) delete rep_;
}

const char* KString::asUTF8() const { return rep_ ? rep_->utf8.c_str() : ""; }

const char* KString::asChar() const {
  if (!rep_ || vesk::narrow::isUtf8()) return asUTF8();
  std::string narrow = vesk::narrow::fromUtf8(rep_->utf8);
  // What was given before stays where it is, as long as it is the same.
  if (narrow != rep_->narrow) rep_->narrow = std::move(narrow);
  return rep_->narrow.c_str();
}

unsigned int KString::length() const {
  return rep_ ? static_cast<unsigned int>(rep_->utf8.size()) : 0;
}

unsigned int KString::numChars() const {
  return static_cast<unsigned int>(vesk::utf8::countCharacters(HostAccess::text(*this)));
}

KString& KString::operator=(const char* narrow) {
  return *this = HostAccess::string(vesk::narrow::toUtf8Repaired(view(narrow)));
}

KString& KString::operator=(const KString& other) {
  KString copy(other);
  std::swap(rep_, copy.rep_);
  return *this;
}

KString& KString::operator+=(const char* narrow) { return *this += KString(narrow); }

KString& KString::operator+=(const KString& other) {
  if (!rep_ || !other.rep_) return other.rep_ ? *this = other : *this;
  if (rep_->references.load(std::memory_order_acquire) == 1) {
    rep_->utf8 += other.rep_->utf8;
    return *this;
  }
  return *this = HostAccess::string(rep_->utf8 + other.rep_->utf8);
}

bool KString::operator==(const char* narrow) const {
  if (vesk::narrow::isUtf8()) return HostAccess::text(*this) == view(narrow);
  return HostAccess::text(*this) == vesk::narrow::toUtf8Repaired(view(narrow));
}

bool KString::operator!=(const char* narrow) const { return !(*this == narrow); }

KStatus KString::set(const char* narrow) {
  auto utf8 = vesk::narrow::toUtf8(view(narrow));
  if (!utf8) return StatusBadArgument;
  *this = HostAccess::string(std::move(*utf8));
  return StatusSuccess;
}

KStatus KString::setUTF8(const char* utf8) {
  if (vesk::utf8::findInvalid(view(utf8)) != vesk::utf8::kValid) return StatusBadArgument;
  *this = HostAccess::string(std::string(view(utf8)));
  return StatusSuccess;
}

KString KString::substring(int first, int last) const {
  const std::string_view text = HostAccess::text(*this);
  first = std::max(first, 0);
  if (last < first) return {};
  const std::size_t begin = vesk::utf8::offsetOfCharacter(text, first);
  const std::string_view rest = text.substr(begin);
  const std::size_t count = static_cast<std::size_t>(last) - first + 1;
  return HostAccess::string(
      std::string(rest.substr(0, vesk::utf8::offsetOfCharacter(rest, count))));
}

KStatus KString::format(const KString& format, const KString& arg1, const KString& arg2,
                        const KString& arg3, const KString& arg4, const KString& arg5,
                        const KString& arg6, const KString& arg7, const KString& arg8,
                        const KString& arg9, const KString& arg10) {
  const KString* const arguments[kFormatPositions] = {&arg1, &arg2, &arg3, &arg4, &arg5,
                                                      &arg6, &arg7, &arg8, &arg9, &arg10};
  std::string_view rest = HostAccess::text(format);
  std::string result;
  while (!rest.empty()) {
    const std::size_t caret = std::min(rest.find('^'), rest.size());
    result += rest.substr(0, caret);
    rest.remove_prefix(caret);
    if (rest.empty()) break;
    const auto [size, number] = readPosition(rest);
    const KString* argument = number > 0 ? arguments[number - 1] : &argUnused;
    const bool filled = argument->rep_ != argUnused.rep_;
    result += filled ? HostAccess::text(*argument) : rest.substr(0, std::max<std::size_t>(size, 1));
    rest.remove_prefix(std::max<std::size_t>(size, 1));
  }
  *this = HostAccess::string(std::move(result));
  return StatusSuccess;
}

VESK_API_CLOSE
