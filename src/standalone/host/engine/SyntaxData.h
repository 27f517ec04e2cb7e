#pragma once

#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "platform/OpenVesk/KSyntax.h"
#include "standalone/host/language/StringHash.h"

namespace vesk {

using ArgType = KSyntax::KArgType;

/// A floating-point argument, for the host's own commands.
inline constexpr auto kArgDouble = static_cast<ArgType>(4);

/// "text", "whole number" and so on, as messages and help name the type.
std::string_view argTypeName(ArgType type);

struct FlagSpec {
  std::string shortName;  ///< as declared
  std::string longName;   ///< as declared
  std::vector<ArgType> arguments = {};
  bool multiUse = false;
  bool keepsArgumentsInQuery = false;
  bool requiresArgumentsInQuery = false;

  bool isNamed(std::string_view name) const { return name == shortName || name == longName; }

  /// The names as a line writes them.
  std::string lineName() const;
  std::string shortLineName() const;
};

/// The representation of a `KSyntax`: flags found by hashed name, in order of declaration.
class SyntaxData {
 public:
  static constexpr int kUnknown = -1;
  static constexpr int kAmbiguous = -2;

  bool addFlag(FlagSpec flag);
  void addArgument(ArgType type) { arguments_.push_back(type); }

  /// Lets the last positional argument be given any number of times.
  void repeatLastArgument() { repeatsLast_ = true; }
  void enableQuery(bool enable) { query_ = enable; }
  void enableEdit(bool enable) { edit_ = enable; }

  const std::vector<FlagSpec>& flags() const { return flags_; }
  const std::vector<ArgType>& arguments() const { return arguments_; }
  bool repeatsLastArgument() const { return repeatsLast_; }
  bool hasQuery() const { return query_; }
  bool hasEdit() const { return edit_; }

  /// The flag of exactly this declared name, or null.
  const FlagSpec* find(std::string_view declaredName) const;
  FlagSpec* find(std::string_view declaredName);

  /// The index of the flag that `written`, with its leading "-", means on a line: a short or long
  /// name, or the beginning of just one long name. Else `kUnknown` or `kAmbiguous`.
  int findWritten(std::string_view written) const;

  /// The flags whose long name begins with `written`, as a line writes them.
  std::vector<std::string> completions(std::string_view written) const;

 private:
  int indexOf(std::string_view bareName) const;

  std::vector<FlagSpec> flags_;
  StringMap<int> byBareName_;  ///< without the leading "-"
  std::vector<ArgType> arguments_;
  bool repeatsLast_ = false;
  bool query_ = false;
  bool edit_ = false;
};

}  // namespace vesk

struct KSyntax::Rep : vesk::SyntaxData {
  unsigned references = 1;
};
