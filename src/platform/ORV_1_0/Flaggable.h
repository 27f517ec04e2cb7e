#pragma once

#include <cstdint>

namespace ORV_v1 {

/// A word of 32 flag bits, zero at construction, named by the enumerators of `Enum`. Each operation
/// also takes a mask of several bits.
template <class Enum>
class Flaggable {
 public:
  virtual ~Flaggable() = default;

  virtual std::uint32_t getFlags() const { return flags_; }
  virtual void setFlag(Enum bit) { flags_ |= static_cast<std::uint32_t>(bit); }
  virtual void clearFlag(Enum bit) { flags_ &= ~static_cast<std::uint32_t>(bit); }
  virtual bool anyFlagSet() const { return flags_ != 0; }

  /// For a mask: whether any of its bits is set.
  virtual bool isFlagSet(Enum bit) const { return (flags_ & static_cast<std::uint32_t>(bit)) != 0; }

 private:
  std::uint32_t flags_ = 0;
};

}  // namespace ORV_v1
