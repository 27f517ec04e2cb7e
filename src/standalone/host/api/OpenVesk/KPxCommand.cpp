#include "platform/OpenVesk/KPxCommand.h"

#include <algorithm>
#include <iterator>
#include <variant>

#include "standalone/host/engine/HostAccess.h"
#include "standalone/host/engine/HostSession.h"

VESK_API_OPEN

namespace {

using Texts = std::vector<std::string>;

void set(vesk::ResultValue value) {
  vesk::HostSession* session = vesk::HostSession::current();
  if (!session) return;
  if (vesk::ResultValue* result = session->engine().runningResult()) *result = std::move(value);
}

void append(Texts more) {
  vesk::HostSession* session = vesk::HostSession::current();
  vesk::ResultValue* result = session ? session->engine().runningResult() : nullptr;
  if (!result) return;
  if (!std::holds_alternative<Texts>(*result)) {
    *result = vesk::hasResult(*result) ? Texts{vesk::toText(*result)} : Texts{};
  }
  Texts& texts = std::get<Texts>(*result);
  std::move(more.begin(), more.end(), std::back_inserter(texts));
}

std::string textOf(const KString& value) { return std::string(HostAccess::text(value)); }

}  // namespace

KPxCommand::KPxCommand() = default;

KPxCommand::~KPxCommand() { delete rep_; }

KStatus KPxCommand::undoIt() { return StatusFailure; }

KStatus KPxCommand::redoIt() { return StatusFailure; }

bool KPxCommand::isUndoable() const { return false; }

bool KPxCommand::hasSyntax() const { return rep_ != nullptr; }

KSyntax KPxCommand::syntax() const { return rep_ ? rep_->entry->syntax : KSyntax(); }

void KPxCommand::clearResult() { set({}); }

void KPxCommand::setResult(bool value) { set(value); }

void KPxCommand::setResult(unsigned int value) { set(value); }

void KPxCommand::setResult(const char* value) { setResult(KString(value)); }

void KPxCommand::setResult(const KString& value) { set(textOf(value)); }

void KPxCommand::setResult(const KStringArray& value) { set(HostAccess::texts(value)); }

void KPxCommand::appendToResult(const char* value) { appendToResult(KString(value)); }

void KPxCommand::appendToResult(const KString& value) { append({textOf(value)}); }

void KPxCommand::appendToResult(const KStringArray& value) { append(HostAccess::texts(value)); }

VESK_API_CLOSE
