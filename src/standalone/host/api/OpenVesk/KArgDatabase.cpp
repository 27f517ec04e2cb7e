#include "platform/OpenVesk/KArgDatabase.h"

#include "standalone/host/engine/HostAccess.h"

VESK_API_OPEN

namespace {

template <class Value, class Reader>
KStatus readAs(const KString& text, Value& value, Reader reader) {
  return reader(HostAccess::text(text), value) ? StatusSuccess : StatusBadArgument;
}

/// The 32 bits of an argument that was declared without a sign fit into an int as well.
bool readBits(std::string_view text, int& value) {
  unsigned int bits = 0;
  if (!vesk::readUnsigned(text, bits)) return false;
  value = static_cast<int>(bits);
  return true;
}

template <class Value, class Reader>
KStatus readFlag(const KArgParser& parser, const char* flag, unsigned int index, Value& value,
                 Reader reader) {
  KStatus status;
  const KString* text = HostAccess::parsed(parser).flagArgument(flag, index, status);
  return text ? readAs(*text, value, reader) : status;
}

}  // namespace

KArgDatabase::KArgDatabase(const KSyntax& syntax, const KArgList& args, KStatus* status)
    : KArgParser(syntax, args, status) {}

KArgDatabase::~KArgDatabase() = default;

KStatus KArgDatabase::getFlagArgument(const char* flag, unsigned int index, KString& value) const {
  KStatus status;
  if (const KString* text = HostAccess::parsed(*this).flagArgument(flag, index, status)) {
    value = *text;
  }
  return status;
}

KStatus KArgDatabase::getFlagArgument(const char* flag, unsigned int index, bool& value) const {
  return readFlag(*this, flag, index, value, vesk::readBool);
}

KStatus KArgDatabase::getFlagArgument(const char* flag, unsigned int index, int& value) const {
  return readFlag(*this, flag, index, value, vesk::readInt);
}

KStatus KArgDatabase::getFlagArgument(const char* flag, unsigned int index,
                                      unsigned int& value) const {
  return readFlag(*this, flag, index, value, vesk::readUnsigned);
}

KStatus KArgDatabase::getCommandArgument(unsigned int index, KString& value) const {
  const KString* text = HostAccess::parsed(*this).positional(index);
  if (!text) return StatusFailure;
  value = *text;
  return StatusSuccess;
}

KStatus KArgDatabase::getCommandArgument(unsigned int index, int& value) const {
  const vesk::ParsedArguments& parsed = HostAccess::parsed(*this);
  const KString* text = parsed.positional(index);
  if (!text) return StatusFailure;
  const bool unsign = parsed.positionalType(index) == KSyntax::ArgUnsigned;
  return readAs(*text, value, unsign ? readBits : vesk::readInt);
}

VESK_API_CLOSE
