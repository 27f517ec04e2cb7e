#pragma once

#include <absl/container/inlined_vector.h>

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "platform/OpenVesk/KArgParser.h"
#include "standalone/host/engine/Arguments.h"
#include "standalone/host/engine/SyntaxData.h"

namespace vesk {

/// A line read against a syntax. What fits can be read also when something else does not.
class ParsedArguments {
 public:
  struct Use {
    unsigned int first;  ///< index of the flag's first argument in `arguments()`
    unsigned int count;
  };

  struct GivenFlag {
    const FlagSpec* spec;
    Use use;  ///< the first
    std::vector<Use> moreUses = {};

    unsigned int uses() const { return 1 + static_cast<unsigned int>(moreUses.size()); }
    const Use& at(unsigned int i) const { return i == 0 ? use : moreUses[i - 1]; }
  };

  /// `syntax` must outlive this object.
  ParsedArguments(const SyntaxData& syntax, std::shared_ptr<const ArgumentArray> arguments);

  /// The first thing that does not fit, as a message that names the flag or argument; empty when
  /// all fits.
  const std::string& refusal() const { return refusal_; }

  bool isQuery() const { return query_; }
  bool isEdit() const { return edit_; }

  /// The flag of this declared name if it was given, else null.
  const GivenFlag* given(const char* declaredName) const;

  /// The same, with the reason for null in `status`.
  const GivenFlag* flag(const char* declaredName, KStatus& status) const;

  /// Argument `index` of the flag's first use, else null and the reason in `status`.
  const KString* flagArgument(const char* declaredName, unsigned int index, KStatus& status) const;

  /// As declared; behind the last one, that of the last.
  ArgType positionalType(unsigned int index) const;

  /// Null when too few were given.
  const KString* positional(unsigned int index) const;
  unsigned int positionalCount() const { return static_cast<unsigned int>(positional_.size()); }

  const std::shared_ptr<const ArgumentArray>& arguments() const { return arguments_; }

 private:
  void read();
  bool readMode(std::string_view written);
  unsigned int readFlag(unsigned int at);
  unsigned int countFlagArguments(const FlagSpec& spec, unsigned int first);
  void recordUse(const FlagSpec& spec, Use use);
  void readPositional(unsigned int at);
  void checkType(ArgType type, unsigned int at, const FlagSpec* spec);
  void refuse(std::string reason);
  std::string_view textAt(unsigned int at) const;

  const SyntaxData& syntax_;
  std::shared_ptr<const ArgumentArray> arguments_;
  absl::InlinedVector<GivenFlag, 2> flags_;  ///< each flag once
  absl::InlinedVector<unsigned int, 4> positional_;
  std::string refusal_;
  bool query_ = false;
  bool edit_ = false;
};

}  // namespace vesk

struct KArgParser::Rep {
  KSyntax syntax;
  vesk::ParsedArguments parsed;
};
