#include "standalone/graph/storage/SelectionSeal.h"

#include <cstdint>

#include "standalone/graph/storage/StoredFormat.h"

namespace orvlib {
namespace {

/// FNV-1a of 64 bits: each byte takes the number to another one, so a single byte that changes is
/// always noticed.
std::uint64_t checksumOf(std::string_view text) {
  std::uint64_t sum = 0xcbf29ce484222325;
  for (const char c : text) {
    sum ^= static_cast<unsigned char>(c);
    sum *= 0x100000001b3;
  }
  return sum;
}

std::string inHexadecimal(std::uint64_t number) {
  std::string digits(16, '0');
  for (auto digit = digits.rbegin(); digit != digits.rend(); ++digit, number >>= 4) {
    *digit = "0123456789abcdef"[number & 15];
  }
  return digits;
}

}  // namespace

std::string sealOf(std::string_view lines) {
  std::string line(kSelectionFormat);
  (line += ' ') += kSelectionVersion;
  (line += ' ') += std::to_string(lines.size());
  (line += ' ') += inHexadecimal(checksumOf(lines));
  return line += '\n';
}

}  // namespace orvlib
