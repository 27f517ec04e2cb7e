#pragma once

#include <cstddef>
#include <cstdint>
#include <iterator>
#include <string>
#include <string_view>

namespace fuzz {

/// Choices made from the bytes of an input. When there are no more bytes every choice is the first
/// one, so that each input means something and a shorter one means something simpler.
class Bytes {
 public:
  explicit Bytes(std::string_view bytes) : bytes_(bytes) {}
  Bytes(const std::uint8_t* data, std::size_t size)
      : Bytes(std::string_view(reinterpret_cast<const char*>(data), size)) {}

  bool empty() const { return bytes_.empty(); }

  std::uint8_t byte() {
    if (bytes_.empty()) return 0;
    const auto first = static_cast<std::uint8_t>(bytes_.front());
    bytes_.remove_prefix(1);
    return first;
  }

  /// A number below `count`, which is not 0.
  std::size_t below(std::size_t count) {
    if (count == 1) return 0;
    const std::size_t low = byte();
    return (count <= 256 ? low : low * 256 + byte()) % count;
  }

  /// True once in `times`, and never without bytes.
  bool rarely(std::size_t times) { return !empty() && below(times) == times - 1; }

  template <class List>
  const auto& oneOf(const List& list) {
    return *std::next(std::begin(list), static_cast<std::ptrdiff_t>(below(std::size(list))));
  }

  /// The next bytes, `longest` at most.
  std::string_view text(std::size_t longest) {
    const std::string_view taken = bytes_.substr(0, below(longest + 1));
    bytes_.remove_prefix(taken.size());
    return taken;
  }

  std::string_view rest() const { return bytes_; }

 private:
  std::string_view bytes_;
};

}  // namespace fuzz
