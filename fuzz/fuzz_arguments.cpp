// Random syntaxes and random lines for them: whatever is declared and given, what the argument
// database tells of a line fits together.

#include <algorithm>
#include <optional>
#include <vector>

#include "fuzz/Bytes.h"
#include "fuzz/require.h"
#include "platform/OpenVesk/KArgDatabase.h"
#include "standalone/host/engine/HostAccess.h"
#include "standalone/host/language/Tokenizer.h"

namespace {

using fuzz::Bytes;
using fuzz::require;

struct DeclaredFlag {
  std::string shortName;
  std::string longName;
  std::vector<KSyntax::KArgType> arguments;
  bool multiUse = false;
  bool keepsInQuery = false;
};

/// A syntax, and what was accepted for it.
struct Declared {
  KSyntax syntax;
  std::vector<DeclaredFlag> flags;
  unsigned positionals = 0;
  bool repeatsLast = false;
  bool query = false;
  bool edit = false;
};

constexpr const char* kNames[] = {"-a",    "-ab",  "-abc", "-abd",   "-q",      "-query", "-e",
                                  "-edit", "a",    "-",    "",       "-x",      "-flag",  "-flags",
                                  "-fl",   "-3",   "-\"",  "-ünïü",  "--a",     "-name",  "-n",
                                  "-long", "-lon", "-inf", "-1e400", "-query2", "- b"};
constexpr KSyntax::KArgType kTypes[] = {KSyntax::ArgString, KSyntax::ArgBoolean,
                                        KSyntax::ArgInteger, KSyntax::ArgUnsigned,
                                        vesk::kArgDouble};
constexpr const char* kValues[] = {
    "a",           "1",          "0",          "-1",         "true",  "FALSE", "off", "2147483647",
    "-2147483648", "2147483648", "4294967295", "4294967296", "1e400", "1.5",   "+5",  "+-5",
    "\"-a\"",      "\"\"",       "\"a b\"",    ".5",         "-.5",   "1.",    "nan", "0x10"};

void declareFlag(Bytes& bytes, Declared& declared) {
  DeclaredFlag flag{bytes.oneOf(kNames), bytes.oneOf(kNames), {}};
  KSyntax::KArgType types[6];
  std::fill(std::begin(types), std::end(types), KSyntax::ArgNone);
  const std::size_t count = bytes.below(7);
  for (std::size_t i = 0; i < count; ++i) flag.arguments.push_back(types[i] = bytes.oneOf(kTypes));
  if (!declared.syntax.addFlag(flag.shortName.c_str(), flag.longName.c_str(), types[0], types[1],
                               types[2], types[3], types[4], types[5])) {
    return;
  }
  flag.multiUse = bytes.rarely(2);
  flag.keepsInQuery = bytes.rarely(3);
  if (flag.multiUse) declared.syntax.makeFlagMultiUse(flag.shortName.c_str());
  if (flag.keepsInQuery) {
    declared.syntax.makeFlagQueryWithFullArgs(flag.longName.c_str(), bytes.rarely(2));
  }
  declared.flags.push_back(std::move(flag));
}

Declared declare(Bytes& bytes) {
  Declared declared;
  const std::size_t modes = bytes.below(8);
  declared.query = modes & 1;
  declared.edit = modes & 2;
  declared.repeatsLast = modes & 4;
  declared.syntax.enableQuery(declared.query);
  declared.syntax.enableEdit(declared.edit);
  const std::size_t flags = bytes.below(8);
  for (std::size_t i = 0; i < flags; ++i) declareFlag(bytes, declared);
  declared.positionals = static_cast<unsigned>(bytes.below(4));
  for (unsigned i = 0; i < declared.positionals; ++i) {
    require(bool(declared.syntax.addArg(bytes.oneOf(kTypes))),
            "a positional argument can be declared");
  }
  if (declared.repeatsLast) HostAccess::data(declared.syntax).repeatLastArgument();
  return declared;
}

/// A name as declared, or only its beginning, with a dash.
std::string flagWord(Bytes& bytes, const Declared& declared) {
  if (declared.flags.empty() || bytes.rarely(8)) return bytes.oneOf(kNames);
  const DeclaredFlag& flag = bytes.oneOf(declared.flags);
  std::string name = bytes.rarely(2) ? flag.longName : flag.shortName;
  if (!name.starts_with('-')) name.insert(0, "-");
  if (bytes.rarely(4)) name.resize(1 + bytes.below(name.size()));
  return name;
}

std::string word(Bytes& bytes, const Declared& declared) {
  switch (bytes.below(4)) {
    case 0:
    case 1:
      return flagWord(bytes, declared);
    case 2:
      return bytes.oneOf(kValues);
    default:
      return vesk::quoted(bytes.text(12));
  }
}

/// Nothing when the words are no line.
std::optional<KArgList> argumentList(Bytes& bytes, const Declared& declared) {
  std::string line;
  while (!bytes.empty()) line += word(bytes, declared) + ' ';
  vesk::TokenizedText read = vesk::tokenize(line);
  if (read.error) return std::nullopt;
  auto arguments = std::make_shared<vesk::ArgumentArray>();
  for (vesk::Statement& statement : read.statements) {
    for (vesk::Token& token : statement.tokens) {
      arguments->push_back({HostAccess::string(std::move(token.text)), token.kind});
    }
  }
  return HostAccess::argList(std::move(arguments));
}

std::string text(const KString& string) { return std::string(HostAccess::text(string)); }

bool reads(const KArgDatabase& database, const char* flag, unsigned index, KSyntax::KArgType type) {
  bool boolean = false;
  int integer = 0;
  unsigned natural = 0;
  switch (type) {
    case KSyntax::ArgBoolean:
      return bool(database.getFlagArgument(flag, index, boolean));
    case KSyntax::ArgInteger:
      return bool(database.getFlagArgument(flag, index, integer));
    case KSyntax::ArgUnsigned:
      return bool(database.getFlagArgument(flag, index, natural));
    default:
      return true;
  }
}

/// The arguments of one use, by all roads.
void checkUse(const KArgDatabase& database, const DeclaredFlag& flag, unsigned use, bool fits) {
  const char* name = flag.shortName.c_str();
  KArgList list;
  require(bool(database.getFlagArgumentList(name, use, list)), "a use has its list", name);
  require(list.length() <= flag.arguments.size(), "a use has no more than declared", name);
  if (fits && !database.isQuery()) {
    require(list.length() == flag.arguments.size(), "a use that fits is whole", name);
  }
  if (use > 0) return;
  for (unsigned i = 0; i < list.length(); ++i) {
    KString byShort;
    KString byLong;
    require(bool(database.getFlagArgument(name, i, byShort)), "a flag's text can be read", name);
    require(bool(database.getFlagArgument(flag.longName.c_str(), i, byLong)), "also by long name");
    require(text(byShort) == text(list.asString(i)), "list and flag give one text", name);
    require(text(byShort) == text(byLong), "both names give one text", name);
    require(text(database.flagArgumentString(name, i)) == text(byLong), "so does the parser");
    if (fits) require(reads(database, name, i, flag.arguments[i]), "what fits can be read", name);
  }
  KString none;
  require(!database.getFlagArgument(name, list.length(), none), "past the end is nothing", name);
}

void checkFlag(const KArgDatabase& database, const DeclaredFlag& flag, bool fits) {
  const char* shortName = flag.shortName.c_str();
  const char* longName = flag.longName.c_str();
  KStatus status;
  const bool set = database.isFlagSet(shortName, &status);
  require(bool(status), "a declared flag can be asked for", shortName);
  require(database.isFlagSet(longName) == set, "both names tell whether it is set", shortName);
  const unsigned uses = database.numberOfFlagUses(shortName);
  require(uses == database.numberOfFlagUses(longName), "both names count the same", shortName);
  require((uses > 0) == set, "a flag that is set is used", shortName);
  require(flag.multiUse || uses <= 1, "one use, unless more are allowed", shortName);
  for (unsigned use = 0; use < uses; ++use) checkUse(database, flag, use, fits);
  KArgList list;
  require(!database.getFlagArgumentList(longName, uses, list), "there is no use past the last");
}

void checkPositionals(const KArgDatabase& database, const Declared& declared, bool fits) {
  unsigned count = 0;
  KString value;
  while (database.getCommandArgument(count, value)) ++count;
  const bool many = declared.repeatsLast && declared.positionals > 0;
  if (fits && !many) require(count <= declared.positionals, "no more positionals than declared");
}

void checkUndeclared(const KArgDatabase& database, const Declared& declared) {
  const auto isDeclared = [&](std::string_view name) {
    return std::ranges::any_of(declared.flags, [&](const DeclaredFlag& flag) {
      return name == flag.shortName || name == flag.longName;
    });
  };
  for (const char* name : kNames) {
    if (isDeclared(name)) continue;
    KStatus status;
    require(!database.isFlagSet(name, &status), "an undeclared flag is not set", name);
    require(status.statusCode() == StatusBadArgument, "and cannot be asked for", name);
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  Bytes bytes(data, size);
  const Declared declared = declare(bytes);
  const std::optional<KArgList> list = argumentList(bytes, declared);
  if (!list) return 0;
  KStatus status;
  const KArgDatabase database(declared.syntax, *list, &status);
  const bool fits(status);
  require(fits || status.statusCode() == StatusBadArgument, "a refusal is a bad argument");
  require(declared.query || !database.isQuery(), "no query where there is none");
  require(declared.edit || !database.isEdit(), "no edit where there is none");
  for (const DeclaredFlag& flag : declared.flags) checkFlag(database, flag, fits);
  checkPositionals(database, declared, fits);
  checkUndeclared(database, declared);
  return 0;
}
