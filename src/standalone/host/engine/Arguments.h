#pragma once

#include <memory>
#include <string_view>
#include <vector>

#include "platform/OpenVesk/KArgList.h"
#include "standalone/host/language/Tokenizer.h"

namespace vesk {

struct Argument {
  KString text;
  TokenKind kind;
};

using ArgumentArray = std::vector<Argument>;

/// `true`, `on`, `yes`, `1` and their opposites, in any case of letters.
bool readBool(std::string_view text, bool& value);

/// Decimal numbers that use the whole text and fit the type.
bool readInt(std::string_view text, int& value);
bool readUnsigned(std::string_view text, unsigned int& value);
bool readDouble(std::string_view text, double& value);

}  // namespace vesk

/// A run of arguments in an array that several lists share.
struct KArgList::Rep {
  unsigned references = 1;
  std::shared_ptr<const vesk::ArgumentArray> array;
  unsigned int first = 0;
  unsigned int count = 0;
};
