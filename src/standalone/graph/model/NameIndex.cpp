#include "standalone/graph/model/NameIndex.h"

#include <absl/container/flat_hash_map.h>

#include <algorithm>
#include <utility>

#include "standalone/graph/model/FreeNumbers.h"
#include "standalone/graph/model/HashSpace.h"

namespace orvlib {

struct NameIndex::Hashed {
  absl::flat_hash_map<std::string_view, void*> elements;
  /// Of each base that a name was sought for and that may have numbers taken.
  absl::flat_hash_map<std::string, FreeNumbers> numbers;

  void* find(std::string_view name) const {
    const auto found = elements.find(name);
    return found == elements.end() ? nullptr : found->second;
  }

  bool add(std::string_view name, void* element) {
    if (!elements.emplace(name, element).second) return false;
    if (numbers.empty()) return true;
    const NumberedName split = numberedName(name);
    const auto found = numbers.find(split.base);
    if (found != numbers.end()) found->second.take(split.number);
    return true;
  }

  void* remove(std::string_view name) {
    const auto found = elements.find(name);
    if (found == elements.end()) return nullptr;
    void* element = found->second;
    elements.erase(found);
    releaseUnusedSpace(elements);
    if (!numbers.empty()) releaseNumber(numberedName(name));
    return element;
  }

  void releaseNumber(const NumberedName& split) {
    const auto found = numbers.find(split.base);
    if (found == numbers.end()) return;
    found->second.release(split.number);
    if (found->second.isBlank()) numbers.erase(found);
  }
};

NameIndex::NameIndex() = default;
NameIndex::~NameIndex() = default;
NameIndex::NameIndex(NameIndex&&) noexcept = default;
NameIndex& NameIndex::operator=(NameIndex&&) noexcept = default;

unsigned NameIndex::size() const {
  return static_cast<unsigned>(hashed_ ? hashed_->elements.size() : few_.size());
}

void* NameIndex::find(std::string_view name) const {
  if (hashed_) return hashed_->find(name);
  for (const Entry& entry : few_) {
    if (entry.name == name) return entry.element;
  }
  return nullptr;
}

bool NameIndex::add(std::string_view name, void* element) {
  if (hashed_) return hashed_->add(name, element);
  if (find(name)) return false;
  few_.push_back({name, element});
  if (few_.size() > kFew) enterHash();
  return true;
}

void* NameIndex::remove(std::string_view name) {
  if (!hashed_) return removeFromFew(name);
  void* element = hashed_->remove(name);
  if (hashed_->elements.size() <= kFewAgain) leaveHash();
  return element;
}

void* NameIndex::removeFromFew(std::string_view name) {
  const auto found = std::find_if(few_.begin(), few_.end(),
                                  [name](const Entry& entry) { return entry.name == name; });
  if (found == few_.end()) return nullptr;
  void* element = found->element;
  *found = few_.back();
  few_.pop_back();
  return element;
}

void NameIndex::enterHash() {
  hashed_ = std::make_unique<Hashed>();
  for (const Entry& entry : few_) hashed_->elements.emplace(entry.name, entry.element);
  few_ = {};
}

void NameIndex::leaveHash() {
  for (const auto& [name, element] : hashed_->elements) few_.push_back({name, element});
  hashed_.reset();
}

std::string NameIndex::uniqueName(std::string_view wanted) {
  std::string name = cleanName(wanted);
  if (!find(name)) return name;
  std::string base = numberedName(name).base;
  const auto numbered = [&](std::uint64_t number) { return base + std::to_string(number); };
  const auto isTaken = [&](std::uint64_t number) { return find(numbered(number)) != nullptr; };
  FreeNumbers ofFew;
  FreeNumbers& numbers = hashed_ ? hashed_->numbers[base] : ofFew;
  return numbered(numbers.smallest(isTaken));
}

}  // namespace orvlib
