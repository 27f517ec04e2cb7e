#include "standalone/host/engine/SyntaxData.h"

#include <utility>

namespace vesk {
namespace {

std::string_view bare(std::string_view name) {
  if (name.starts_with('-')) name.remove_prefix(1);
  return name;
}

}  // namespace

std::string_view argTypeName(ArgType type) {
  switch (type) {
    case KSyntax::ArgNone:
      return "nothing";
    case KSyntax::ArgBoolean:
      return "true or false";
    case KSyntax::ArgInteger:
      return "a whole number";
    case KSyntax::ArgUnsigned:
      return "a whole number from 0";
    case KSyntax::ArgString:
      return "a text";
    default:
      return "a number";
  }
}

std::string FlagSpec::lineName() const { return "-" + std::string(bare(longName)); }

std::string FlagSpec::shortLineName() const { return "-" + std::string(bare(shortName)); }

bool SyntaxData::addFlag(FlagSpec flag) {
  const std::string shortName(bare(flag.shortName));
  const std::string longName(bare(flag.longName));
  if (shortName.empty() || longName.empty()) return false;
  if (indexOf(shortName) != kUnknown || indexOf(longName) != kUnknown) return false;
  const int index = static_cast<int>(flags_.size());
  byBareName_.emplace(shortName, index);
  byBareName_.emplace(longName, index);
  flags_.push_back(std::move(flag));
  return true;
}

int SyntaxData::indexOf(std::string_view bareName) const {
  const auto found = byBareName_.find(bareName);
  return found == byBareName_.end() ? kUnknown : found->second;
}

const FlagSpec* SyntaxData::find(std::string_view declaredName) const {
  const int index = indexOf(bare(declaredName));
  return index != kUnknown && flags_[index].isNamed(declaredName) ? &flags_[index] : nullptr;
}

FlagSpec* SyntaxData::find(std::string_view declaredName) {
  return const_cast<FlagSpec*>(std::as_const(*this).find(declaredName));
}

int SyntaxData::findWritten(std::string_view written) const {
  const std::string_view name = bare(written);
  int found = indexOf(name);
  if (found != kUnknown || name.empty()) return found;
  for (std::size_t i = 0; i < flags_.size(); ++i) {
    if (!bare(flags_[i].longName).starts_with(name)) continue;
    if (found != kUnknown) return kAmbiguous;
    found = static_cast<int>(i);
  }
  return found;
}

std::vector<std::string> SyntaxData::completions(std::string_view written) const {
  std::vector<std::string> names;
  for (const FlagSpec& flag : flags_) {
    if (bare(flag.longName).starts_with(bare(written))) names.push_back(flag.lineName());
  }
  return names;
}

}  // namespace vesk
