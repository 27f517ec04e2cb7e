#pragma once

#include <string>
#include <vector>

#include "standalone/host/engine/HostAccess.h"
#include "standalone/host/engine/SyntaxData.h"

/// What a syntax declares: "-d -disconnect" for a flag, with the kinds of its arguments as one
/// letter each (T text, U unsigned) and "*" for repeated use; then the kinds of the positional
/// arguments.
inline std::vector<std::string> declared(const KSyntax& syntax) {
  const auto kinds = [](const std::vector<vesk::ArgType>& types) {
    std::string letters;
    for (const vesk::ArgType type : types) {
      letters += type == KSyntax::ArgString ? 'T' : type == KSyntax::ArgUnsigned ? 'U' : '?';
    }
    return letters;
  };
  const vesk::SyntaxData& data = HostAccess::data(syntax);
  std::vector<std::string> texts;
  for (const vesk::FlagSpec& flag : data.flags()) {
    const std::string arguments = kinds(flag.arguments);
    texts.push_back(flag.shortName + " " + flag.longName + (arguments.empty() ? "" : " ") +
                    arguments + (flag.multiUse ? " *" : ""));
  }
  texts.push_back(kinds(data.arguments()));
  return texts;
}
