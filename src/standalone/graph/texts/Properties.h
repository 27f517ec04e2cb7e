#pragma once

#include <list>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "platform/ORV_1_0/OrvApi.h"

namespace orvlib {

/// One key of a set of properties, with at least one value.
struct Property {
  std::string key;
  std::vector<std::string> values;

  bool operator==(const Property& other) const = default;
};

/// Keys with their values, in the order in which the keys came. No key is empty, and none is
/// without a value. A value; an empty set costs a pointer, and lookups by key are hashed as soon as
/// there are more than a few.
class ORV_EXPORT Properties {
 public:
  Properties();
  Properties(const Properties& other);
  Properties(Properties&& other) noexcept;
  Properties& operator=(Properties other) noexcept;
  ~Properties();

  bool empty() const { return content_ == nullptr; }

  /// The values of a key, valid until the set changes; null for an unknown key.
  const std::vector<std::string>* find(std::string_view key) const;

  /// Replaces the values of a key, which keeps its place; a new key comes last. Without values the
  /// key goes. False, and nothing changed, for an empty key.
  bool set(std::string_view key, std::vector<std::string> values);

  /// Adds a value after those of the key, and the key when it is new. False, and nothing changed,
  /// for an empty key.
  bool addValue(std::string_view key, std::string_view value);

  /// Takes out the first equal value of the key, and with its last value the key. False when there
  /// is none.
  bool removeValue(std::string_view key, std::string_view value);

  /// Takes out the key with all its values. False when there is no such key.
  bool clear(std::string_view key);

  std::vector<std::string> keys() const;

  /// In the order of the keys, valid until the set changes.
  const std::list<Property>& all() const;

  /// The order of the keys counts.
  bool operator==(const Properties& other) const { return all() == other.all(); }

 private:
  struct Content;

  /// Null when there is no key.
  std::unique_ptr<Content> content_;
};

}  // namespace orvlib
