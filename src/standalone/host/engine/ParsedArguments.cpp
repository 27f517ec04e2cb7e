#include "standalone/host/engine/ParsedArguments.h"

#include <algorithm>

namespace vesk {
namespace {

bool fits(ArgType type, std::string_view text) {
  bool boolean;
  int integer;
  unsigned int natural;
  double number;
  if (type == kArgDouble) return readDouble(text, number);
  switch (type) {
    case KSyntax::ArgBoolean:
      return readBool(text, boolean);
    case KSyntax::ArgInteger:
      return readInt(text, integer);
    case KSyntax::ArgUnsigned:
      return readUnsigned(text, natural);
    default:
      return true;
  }
}

/// A command asks for its flags by name, and most are not given: two names nearly always differ in
/// the first letters, before a library call would pay.
bool same(const std::string& declared, const char* name) {
  const char* at = declared.c_str();
  for (; *at != '\0' && *at == *name; ++at) ++name;
  return *at == *name;
}

/// What a type expects, with its range when the text is a number beyond it.
std::string_view expectation(ArgType type, std::string_view text) {
  if (!isNumber(text)) return argTypeName(type);
  const bool whole = text.find_first_not_of("+-0123456789") == std::string_view::npos;
  if (type == KSyntax::ArgInteger && whole) {
    return "a whole number from -2147483648 to 2147483647";
  }
  if (type == KSyntax::ArgUnsigned && whole) {
    return "a whole number from 0 to 4294967295";
  }
  return type == kArgDouble ? "a number that 64 bits can hold" : argTypeName(type);
}

std::string counted(std::size_t count, std::string_view noun) {
  return std::to_string(count) + " " + std::string(noun) + (count == 1 ? "" : "s");
}

}  // namespace

ParsedArguments::ParsedArguments(const SyntaxData& syntax,
                                 std::shared_ptr<const ArgumentArray> arguments)
    : syntax_(syntax), arguments_(std::move(arguments)) {
  if (arguments_) read();
}

std::string_view ParsedArguments::textAt(unsigned int at) const {
  const KString& text = (*arguments_)[at].text;
  return {text.asUTF8(), text.length()};
}

void ParsedArguments::refuse(std::string reason) {
  if (refusal_.empty()) refusal_ = std::move(reason);
}

/// The modes come first: they decide how many arguments each flag takes.
void ParsedArguments::read() {
  const auto size = static_cast<unsigned int>(arguments_->size());
  const auto isFlag = [this](unsigned int i) { return (*arguments_)[i].kind == TokenKind::Flag; };
  for (unsigned int i = 0; i < size; ++i) {
    if (isFlag(i)) readMode(textAt(i));
  }
  for (unsigned int i = 0; i < size;) {
    if (isFlag(i)) {
      i = readFlag(i);
    } else {
      readPositional(i++);
    }
  }
  if (query_ && edit_) refuse("query mode and edit mode exclude each other");
}

bool ParsedArguments::readMode(std::string_view written) {
  const bool query = syntax_.hasQuery() && (written == "-q" || written == "-query");
  const bool edit = syntax_.hasEdit() && (written == "-e" || written == "-edit");
  query_ |= query;
  edit_ |= edit;
  return query || edit;
}

/// Returns the index behind the flag and its arguments.
unsigned int ParsedArguments::readFlag(unsigned int at) {
  const std::string_view written = textAt(at);
  if (readMode(written)) return at + 1;
  const int index = syntax_.findWritten(written);
  if (index == SyntaxData::kUnknown) {
    refuse("unknown flag " + shortened(written));
    return at + 1;
  }
  if (index == SyntaxData::kAmbiguous) {
    std::string names;
    for (const std::string& name : syntax_.completions(written)) {
      names += (names.empty() ? "" : ", ") + name;
    }
    refuse("ambiguous flag " + std::string(written) + ": it could be " + names);
    return at + 1;
  }
  const FlagSpec& spec = syntax_.flags()[index];
  const unsigned int count = countFlagArguments(spec, at + 1);
  for (unsigned int i = 0; i < count; ++i) checkType(spec.arguments[i], at + 1 + i, &spec);
  recordUse(spec, {at + 1, count});
  return at + 1 + count;
}

unsigned int ParsedArguments::countFlagArguments(const FlagSpec& spec, unsigned int first) {
  if (query_ && !spec.keepsArgumentsInQuery) return 0;
  const std::size_t wanted = spec.arguments.size();
  std::size_t found = 0;
  while (found < wanted && first + found < arguments_->size() &&
         (*arguments_)[first + found].kind != TokenKind::Flag) {
    ++found;
  }
  const bool mayLackAll = query_ && !spec.requiresArgumentsInQuery;
  if (found < wanted && !(mayLackAll && found == 0)) {
    refuse("flag " + spec.lineName() + " needs " + counted(wanted, "argument") + ", " +
           std::to_string(found) + " given");
  }
  return static_cast<unsigned int>(found);
}

void ParsedArguments::recordUse(const FlagSpec& spec, Use use) {
  const auto known = std::find_if(flags_.begin(), flags_.end(),
                                  [&](const GivenFlag& given) { return given.spec == &spec; });
  if (known == flags_.end()) {
    flags_.push_back({&spec, use, {}});
  } else if (spec.multiUse) {
    known->moreUses.push_back(use);
  } else {
    refuse("flag " + spec.lineName() + " is given more than once");
  }
}

void ParsedArguments::readPositional(unsigned int at) {
  const std::vector<ArgType>& types = syntax_.arguments();
  const std::size_t index = positional_.size();
  positional_.push_back(at);
  if (index < types.size()) {
    checkType(types[index], at, nullptr);
  } else if (syntax_.repeatsLastArgument() && !types.empty()) {
    checkType(types.back(), at, nullptr);
  } else {
    refuse("too many arguments: " + quotedBriefly(textAt(at)) + " is one more than the " +
           std::to_string(types.size()) + " expected");
  }
}

void ParsedArguments::checkType(ArgType type, unsigned int at, const FlagSpec* spec) {
  const std::string_view text = textAt(at);
  if (fits(type, text)) return;
  const std::string who =
      spec ? "flag " + spec->lineName() : "argument " + std::to_string(positional_.size());
  refuse(who + " expects " + std::string(expectation(type, text)) + ", not " + quotedBriefly(text));
}

ArgType ParsedArguments::positionalType(unsigned int index) const {
  const std::vector<ArgType>& types = syntax_.arguments();
  return index < types.size() ? types[index] : types.empty() ? KSyntax::ArgNone : types.back();
}

const ParsedArguments::GivenFlag* ParsedArguments::given(const char* declaredName) const {
  for (const GivenFlag& one : flags_) {
    if (same(one.spec->shortName, declaredName) || same(one.spec->longName, declaredName)) {
      return &one;
    }
  }
  return nullptr;
}

const ParsedArguments::GivenFlag* ParsedArguments::flag(const char* declaredName,
                                                        KStatus& status) const {
  const char* name = declaredName ? declaredName : "";
  const GivenFlag* found = given(name);
  if (found) {
    status = StatusSuccess;
  } else {
    status = syntax_.find(name) ? StatusFailure : StatusBadArgument;
  }
  return found;
}

const KString* ParsedArguments::flagArgument(const char* declaredName, unsigned int index,
                                             KStatus& status) const {
  const GivenFlag* given = flag(declaredName, status);
  if (!given) return nullptr;
  if (index >= given->use.count) {
    status = StatusFailure;
    return nullptr;
  }
  return &(*arguments_)[given->use.first + index].text;
}

const KString* ParsedArguments::positional(unsigned int index) const {
  return index < positional_.size() ? &(*arguments_)[positional_[index]].text : nullptr;
}

}  // namespace vesk
