#pragma once

#include <memory>
#include <string>

#include "standalone/graph/model/NameTable.h"
#include "standalone/graph/model/OrderedList.h"

namespace orvlib {

enum class ListKind : unsigned char {
  /// What one object consists of: names are unique.
  Members,
  /// What a caller collects: names may be equal.
  Collected,
  /// The far ends of connections: names may be equal, and the list holds no reference.
  Peers
};

/// The public list class `Api` over a list of `Item` objects. Members are found by name by looking
/// at each while they are few, and through a table once they are many; renaming one takes
/// `beforeRename` and `afterRename`.
template <class Api, class Item>
class ObjectList : public Api {
 public:
  explicit ObjectList(ListKind kind) : kind_(kind) {}
  ~ObjectList() override { clear(); }

  ListKind kind() const { return kind_; }
  unsigned int count() const { return static_cast<unsigned int>(items_.size()); }

  /// Null past the end.
  Item* at(unsigned int index) const { return index < count() ? items_.at(index) : nullptr; }

  unsigned int indexOf(const Item* item) const { return items_.indexOf(item); }
  bool contains(const Item* item) const { return items_.contains(item); }

  /// The first item of that name; null for an unknown name.
  Item* find(std::string_view name) const {
    if (table_) return table_->find(name);
    for (Item* item : items_) {
      if (item->name() == name) return item;
    }
    return nullptr;
  }

  /// `wanted`, or the name with the smallest free number when a member has it.
  std::string uniqueName(std::string_view wanted) {
    if (!find(wanted)) return std::string(wanted);
    makeTable();
    return table_->uniqueName(wanted);
  }

  void append(Item* item) { insert(count(), item); }

  /// An index past the end counts as the end.
  void insert(unsigned int index, Item* item) {
    if (kind_ != ListKind::Peers) item->addRef();
    items_.insert(index, item);
    afterRename(item);
    if (kind_ == ListKind::Members && !table_ && count() > kFew) makeTable();
  }

  /// The index that the item had; all ones, and nothing happens, when it is not in the list.
  unsigned int remove(Item* item) {
    if (!items_.contains(item)) return OrderedList<Item>::kNotFound;
    beforeRename(item);
    const unsigned int index = items_.remove(item);
    if (kind_ != ListKind::Peers) item->release();
    return index;
  }

  void clear() {
    table_.reset();
    const OrderedList<Item> former = std::move(items_);
    items_ = OrderedList<Item>();
    if (kind_ == ListKind::Peers) return;
    for (Item* item : former) item->release();
  }

  void beforeRename(const Item* item) {
    if (table_) table_->remove(item->name());
  }
  void afterRename(Item* item) {
    if (table_) table_->add(item->name(), item);
  }

  const OrderedList<Item>& items() const { return items_; }

 private:
  static constexpr unsigned int kFew = 16;

  void makeTable() {
    if (table_) return;
    table_ = std::make_unique<NameTable<Item>>();
    for (Item* item : items_) table_->add(item->name(), item);
  }

  OrderedList<Item> items_;
  std::unique_ptr<NameTable<Item>> table_;
  ListKind kind_;
};

/// A list that is a part of a larger object: handles to it do not end it.
template <class List>
class EmbeddedList final : public List {
 public:
  EmbeddedList() : List(ListKind::Members) { this->addRef(); }
};

}  // namespace orvlib
