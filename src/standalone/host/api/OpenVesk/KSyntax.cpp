#include "platform/OpenVesk/KSyntax.h"

#include <utility>

#include "standalone/host/engine/HostAccess.h"

VESK_API_OPEN

KSyntax::KSyntax() : rep_(new Rep) {}

KSyntax::KSyntax(const KSyntax& other) : rep_(other.rep_) { ++rep_->references; }

KSyntax& KSyntax::operator=(const KSyntax& other) {
  KSyntax copy(other);
  std::swap(rep_, copy.rep_);
  return *this;
}

KSyntax::~KSyntax() {
  if (--rep_->references == 0) delete rep_;
}

KStatus KSyntax::addFlag(const char* shortName, const char* longName, KArgType arg1, KArgType arg2,
                         KArgType arg3, KArgType arg4, KArgType arg5, KArgType arg6) {
  if (!shortName || !longName) return StatusBadArgument;
  vesk::FlagSpec flag{.shortName = shortName, .longName = longName};
  bool ended = false;
  for (const KArgType type : {arg1, arg2, arg3, arg4, arg5, arg6}) {
    if (ended && type != ArgNone) return StatusBadArgument;
    ended |= type == ArgNone;
    if (!ended) flag.arguments.push_back(type);
  }
  return HostAccess::data(*this).addFlag(std::move(flag)) ? StatusSuccess : StatusBadArgument;
}

KStatus KSyntax::addArg(KArgType type) {
  if (type == ArgNone) return StatusBadArgument;
  HostAccess::data(*this).addArgument(type);
  return StatusSuccess;
}

KStatus KSyntax::makeFlagMultiUse(const char* shortName) {
  vesk::FlagSpec* flag = HostAccess::data(*this).find(shortName ? shortName : "");
  if (!flag) return StatusBadArgument;
  flag->multiUse = true;
  return StatusSuccess;
}

KStatus KSyntax::makeFlagQueryWithFullArgs(const char* shortName, bool required) {
  vesk::FlagSpec* flag = HostAccess::data(*this).find(shortName ? shortName : "");
  if (!flag) return StatusBadArgument;
  flag->keepsArgumentsInQuery = true;
  flag->requiresArgumentsInQuery = required;
  return StatusSuccess;
}

void KSyntax::enableQuery(bool enable) { HostAccess::data(*this).enableQuery(enable); }

void KSyntax::enableEdit(bool enable) { HostAccess::data(*this).enableEdit(enable); }

VESK_API_CLOSE
