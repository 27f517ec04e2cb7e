#pragma once

#include <memory>
#include <vector>

#include "standalone/graph/model/NameRules.h"

namespace orvlib {

/// What NameTable is made of, for any kind of element: up to kFew names in one array that is
/// searched from end to end, more in a hash.
class ORV_EXPORT NameIndex {
 public:
  static constexpr unsigned kFew = 8;
  static constexpr unsigned kFewAgain = 4;  ///< Where a table that shrinks leaves its hash.

  NameIndex();
  ~NameIndex();
  NameIndex(NameIndex&&) noexcept;
  NameIndex& operator=(NameIndex&&) noexcept;

  unsigned size() const;
  void* find(std::string_view name) const;
  bool add(std::string_view name, void* element);
  void* remove(std::string_view name);
  std::string uniqueName(std::string_view wanted);

 private:
  struct Entry {
    std::string_view name;
    void* element;
  };
  struct Hashed;

  void* removeFromFew(std::string_view name);
  void enterHash();
  void leaveHash();

  std::vector<Entry> few_;
  std::unique_ptr<Hashed> hashed_;  ///< When it is there, it has all, and `few_` is empty.
};

}  // namespace orvlib
