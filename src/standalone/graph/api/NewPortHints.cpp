#include "platform/ORV_1_0/NewPortHints.h"

#include <optional>

#include "standalone/graph/api/GraphAccess.h"

namespace ORV_v1 {
namespace {

struct TextHint {
  String text;
  bool given = false;

  bool get(const String*& out) const {
    out = &text;
    return given;
  }
  void set(const char* wish) {
    given = wish != nullptr;
    text = GraphAccess::makeString(given ? wish : "");
  }
};

}  // namespace

struct NewPortHints::Rep {
  TextHint name;
  TextHint type;
  std::optional<PortProperties> properties;
};

NewPortHints::NewPortHints() : rep_(new Rep) {}
NewPortHints::NewPortHints(const NewPortHints& other) : rep_(new Rep(*other.rep_)) {}
NewPortHints::~NewPortHints() { delete rep_; }

NewPortHints& NewPortHints::operator=(const NewPortHints& other) {
  *rep_ = *other.rep_;
  return *this;
}

bool NewPortHints::nameHint(const String*& name) const { return rep_->name.get(name); }

bool NewPortHints::typeHint(const String*& type) const { return rep_->type.get(type); }

bool NewPortHints::propertiesHint(const PortProperties*& properties) const {
  properties = rep_->properties ? &*rep_->properties : nullptr;
  return properties != nullptr;
}

void NewPortHints::setNameHint(const char* name) { rep_->name.set(name); }

void NewPortHints::setTypeHint(const char* type) { rep_->type.set(type); }

void NewPortHints::setPropertiesHint(const PortProperties& properties) {
  rep_->properties = properties;
}

}  // namespace ORV_v1
