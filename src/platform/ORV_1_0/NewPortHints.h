#pragma once

#include "platform/ORV_1_0/PortProperties.h"
#include "platform/ORV_1_0/String.h"

namespace ORV_v1 {

/// What an editor wishes for a new port. Each wish may be absent. A value.
class ORV_EXPORT NewPortHints {
 public:
  NewPortHints();
  NewPortHints(const NewPortHints& other);
  NewPortHints& operator=(const NewPortHints& other);
  ~NewPortHints();

  /// The wished name, and whether there is one. `name` is set in any case, to an empty text when
  /// there is none, and is valid while the hints live unchanged.
  bool nameHint(const String*& name) const;

  /// The wished type, by its name. The rest as for `nameHint`.
  bool typeHint(const String*& type) const;

  /// The wished properties, and whether there are any; `properties` is set to null when there are
  /// none, and otherwise is valid while the hints live unchanged.
  bool propertiesHint(const PortProperties*& properties) const;

  /// Null takes the wish back. Empty text is a wish like any other.
  void setNameHint(const char* name);
  void setTypeHint(const char* type);

  void setPropertiesHint(const PortProperties& properties);

 private:
  friend struct GraphAccess;
  struct Rep;
  Rep* rep_;
};

}  // namespace ORV_v1
