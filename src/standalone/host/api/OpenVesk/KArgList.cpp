#include "platform/OpenVesk/KArgList.h"

#include <utility>

#include "standalone/host/engine/HostAccess.h"

VESK_API_OPEN

KArgList::KArgList() = default;

KArgList::KArgList(const KArgList& other) : rep_(other.rep_) {
  if (rep_) ++rep_->references;
}

KArgList& KArgList::operator=(const KArgList& other) {
  KArgList copy(other);
  std::swap(rep_, copy.rep_);
  return *this;
}

KArgList::~KArgList() {
  if (rep_ && --rep_->references == 0) delete rep_;
}

unsigned int KArgList::length(KStatus* status) const {
  HostAccess::report(status, StatusSuccess);
  return rep_ ? rep_->count : 0;
}

KString KArgList::asString(unsigned int index, KStatus* status) const {
  const bool there = index < length();
  HostAccess::report(status, there ? StatusSuccess : StatusFailure);
  return there ? (*rep_->array)[rep_->first + index].text : KString();
}

bool KArgList::asBool(unsigned int index, KStatus* status) const {
  KStatus read;
  const KString text = asString(index, &read);
  bool value = false;
  if (read && !vesk::readBool(HostAccess::text(text), value)) read = StatusBadArgument;
  HostAccess::report(status, read);
  return value;
}

VESK_API_CLOSE
