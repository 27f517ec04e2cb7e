#include "platform/ORV_1_0/Namable.h"

#include "standalone/graph/api/GraphAccess.h"

namespace ORV_v1 {
namespace {

void append(std::string& path, char separator, const char* name) {
  if (!name || *name == '\0') return;
  // The top of a graph is "/": its children follow that separator, they do not get a second one.
  if (!path.empty() && path.back() != separator) path += separator;
  path += name;
}

}  // namespace

Namable::Namable() : rep_(new Rep) {}
Namable::Namable(const Namable& other) : rep_(new Rep(*other.rep_)) {}
Namable::~Namable() { delete rep_; }

Namable& Namable::operator=(const Namable& other) {
  *rep_ = *other.rep_;
  return *this;
}

const char* Namable::getName() const { return rep_->text.c_str(); }

void Namable::appendNodeName(const char* name) { append(rep_->text, '/', name); }

void Namable::appendPortName(const char* name) { append(rep_->text, '.', name); }

Namable GraphAccess::makeNamable(const std::string& text) {
  Namable namable;
  namable.rep_->text = text;
  return namable;
}

}  // namespace ORV_v1
