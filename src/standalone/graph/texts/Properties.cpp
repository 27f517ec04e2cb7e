#include "standalone/graph/texts/Properties.h"

#include <algorithm>
#include <unordered_map>

namespace orvlib {
namespace {

/// A search through so many keys is as fast as a hashed one, and needs no memory.
constexpr std::size_t kMostUnhashedKeys = 16;

}  // namespace

struct Properties::Content {
  using Place = std::list<Property>::iterator;

  Content() = default;
  Content(const Content& other) : all(other.all) { indexIfLarge(); }
  Content& operator=(const Content&) = delete;

  /// The end of the list for an unknown key.
  Place find(std::string_view key) {
    if (index.empty()) {
      return std::find_if(all.begin(), all.end(),
                          [key](const auto& one) { return one.key == key; });
    }
    const auto found = index.find(key);
    return found == index.end() ? all.end() : found->second;
  }

  Property& findOrAdd(std::string_view key) {
    const Place found = find(key);
    if (found != all.end()) return *found;
    const Place added = all.insert(all.end(), {std::string(key), {}});
    if (index.empty()) {
      indexIfLarge();
    } else {
      index.emplace(added->key, added);
    }
    return *added;
  }

  void erase(Place place) {
    index.erase(place->key);
    all.erase(place);
  }

  void indexIfLarge() {
    if (all.size() <= kMostUnhashedKeys) return;
    for (Place place = all.begin(); place != all.end(); ++place) index.emplace(place->key, place);
  }

  std::list<Property> all;

  /// Either empty or complete. Its keys are the texts in the list.
  std::unordered_map<std::string_view, Place> index;
};

Properties::Properties() = default;
Properties::Properties(const Properties& other)
    : content_(other.content_ ? std::make_unique<Content>(*other.content_) : nullptr) {}
Properties::Properties(Properties&& other) noexcept = default;
Properties::~Properties() = default;

Properties& Properties::operator=(Properties other) noexcept {
  content_.swap(other.content_);
  return *this;
}

const std::vector<std::string>* Properties::find(std::string_view key) const {
  if (!content_) return nullptr;
  const auto found = content_->find(key);
  return found == content_->all.end() ? nullptr : &found->values;
}

bool Properties::set(std::string_view key, std::vector<std::string> values) {
  if (key.empty()) return false;
  if (values.empty()) {
    clear(key);
    return true;
  }
  if (!content_) content_ = std::make_unique<Content>();
  content_->findOrAdd(key).values = std::move(values);
  return true;
}

bool Properties::addValue(std::string_view key, std::string_view value) {
  if (key.empty()) return false;
  if (!content_) content_ = std::make_unique<Content>();
  content_->findOrAdd(key).values.emplace_back(value);
  return true;
}

bool Properties::removeValue(std::string_view key, std::string_view value) {
  if (!content_) return false;
  const auto place = content_->find(key);
  if (place == content_->all.end()) return false;
  auto& values = place->values;
  const auto found = std::find(values.begin(), values.end(), value);
  if (found == values.end()) return false;
  if (values.size() == 1) return clear(key);
  values.erase(found);
  return true;
}

bool Properties::clear(std::string_view key) {
  if (!content_) return false;
  const auto place = content_->find(key);
  if (place == content_->all.end()) return false;
  content_->erase(place);
  if (content_->all.empty()) content_.reset();
  return true;
}

std::vector<std::string> Properties::keys() const {
  std::vector<std::string> keys;
  for (const Property& property : all()) keys.push_back(property.key);
  return keys;
}

const std::list<Property>& Properties::all() const {
  static const std::list<Property> kNone;
  return content_ ? content_->all : kNone;
}

}  // namespace orvlib
