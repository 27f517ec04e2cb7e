#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "standalone/graph/model/Handles.h"

namespace orvlib {

/// The containers of the program: all of them, and by UUID those that have one. It owns none.
class ContainerTable {
 public:
  /// A UUID that is taken leads to the new container from now on.
  static void add(std::string_view uuid, ContainerObject& container);

  /// Nothing happens when the UUID leads to another container.
  static void remove(std::string_view uuid, const ContainerObject& container);

  /// Null for an unknown UUID.
  static ContainerObject* find(std::string_view uuid);

  /// The UUID that leads to the container; empty when none does.
  static std::string uuidOf(const ContainerObject& container);

  /// A container comes to be, and goes.
  static void enter(ContainerObject& container);
  static void leave(ContainerObject& container);

  /// In the order in which they came to be.
  static std::vector<ContainerObject*> all();
};

}  // namespace orvlib
