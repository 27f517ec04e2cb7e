#include "platform/ORV_1_0/Namable.h"

#include "standalone/graph/api/GraphAccess.h"

namespace ORV_v1 {
namespace {

std::string extended(std::string path, char separator, const char* name) {
  if (!name || *name == '\0') return path;
  // The top of a graph is "/": its children follow that separator, they do not get a second one.
  if (!path.empty() && path.back() != separator) path += separator;
  return path + name;
}

}  // namespace

Namable::Namable() = default;
Namable::Namable(const Namable& other) { Namable::setName(other.getName()); }
Namable::~Namable() { delete rep_; }

Namable& Namable::operator=(const Namable& other) {
  setName(other.getName());
  return *this;
}

const char* Namable::getName() const { return rep_ ? rep_->text.c_str() : ""; }

void Namable::appendNodeName(const char* name) {
  Namable::setName(extended(Namable::getName(), '/', name).c_str());
}

void Namable::appendPortName(const char* name) {
  Namable::setName(extended(Namable::getName(), '.', name).c_str());
}

void Namable::setName(const char* name) {
  // The name may be a piece of the text that it replaces.
  Rep* const replaced = rep_;
  rep_ = name && *name != '\0' ? new Rep{name} : nullptr;
  delete replaced;
}

Namable GraphAccess::makeNamable(const std::string& text) {
  Namable namable;
  namable.setName(text.c_str());
  return namable;
}

}  // namespace ORV_v1
