#include "platform/OpenVesk/KArgParser.h"

#include "standalone/host/engine/HostAccess.h"
#include "standalone/host/engine/HostSession.h"

VESK_API_OPEN

namespace {

void displayRefusal(const std::string& refusal) {
  vesk::HostSession* session = vesk::HostSession::current();
  if (!session) return;
  const std::string_view command = session->engine().runningCommand();
  session->messages().error(command.empty() ? refusal : std::string(command) + ": " + refusal);
}

}  // namespace

KArgParser::KArgParser(const KSyntax& syntax, const KArgList& args, KStatus* status)
    : rep_(new Rep{syntax, {HostAccess::data(syntax), HostAccess::argumentsOf(args)}}) {
  const std::string& refusal = rep_->parsed.refusal();
  if (!refusal.empty()) displayRefusal(refusal);
  HostAccess::report(status, refusal.empty() ? StatusSuccess : StatusBadArgument);
}

KArgParser::~KArgParser() { delete rep_; }

/// Commands ask for all their flags, most of which are not given: unless the caller wants the
/// reason, it is not looked for.
bool KArgParser::isFlagSet(const char* flag, KStatus* status) const {
  if (!status) return flag && rep_->parsed.given(flag);
  KStatus found;
  const bool given = rep_->parsed.flag(flag, found) != nullptr;
  HostAccess::report(status,
                     found.statusCode() == StatusBadArgument ? StatusBadArgument : StatusSuccess);
  return given;
}

bool KArgParser::isQuery(KStatus* status) const {
  HostAccess::report(status, StatusSuccess);
  return rep_->parsed.isQuery();
}

bool KArgParser::isEdit(KStatus* status) const {
  HostAccess::report(status, StatusSuccess);
  return rep_->parsed.isEdit();
}

unsigned int KArgParser::numberOfFlagUses(const char* flag) const {
  KStatus status;
  const auto* given = rep_->parsed.flag(flag, status);
  return given ? given->uses() : 0;
}

KStatus KArgParser::getFlagArgumentList(const char* flag, unsigned int use, KArgList& args) const {
  KStatus status;
  const auto* given = rep_->parsed.flag(flag, status);
  if (!given) return status;
  if (use >= given->uses()) return StatusFailure;
  const auto& [first, count] = given->at(use);
  args = HostAccess::argList(rep_->parsed.arguments(), first, count);
  return StatusSuccess;
}

KString KArgParser::flagArgumentString(const char* flag, unsigned int index,
                                       KStatus* status) const {
  KStatus found;
  const KString* text = rep_->parsed.flagArgument(flag, index, found);
  HostAccess::report(status, found);
  return text ? *text : KString();
}

int KArgParser::flagArgumentInt(const char* flag, unsigned int index, KStatus* status) const {
  KStatus found;
  const KString* text = rep_->parsed.flagArgument(flag, index, found);
  int value = 0;
  if (text && !vesk::readInt(HostAccess::text(*text), value)) found = StatusBadArgument;
  HostAccess::report(status, found);
  return value;
}

VESK_API_CLOSE
