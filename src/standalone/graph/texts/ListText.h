#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "platform/ORV_1_0/OrvApi.h"

namespace orvlib {

/// The four characters that structure the text of a list. They must all differ.
struct ListTags {
  char open = '{';
  char close = '}';
  char separator = ',';
  char escape = '\\';
};

/// A list of texts as one text. A single text is written bare, unless it is empty; other lists are
/// `{a,b,c}`. A separator follows an empty last element, so that `{}` is no element, `{,}` one
/// and `{,,}` two.
ORV_EXPORT std::string writeList(std::span<const std::string> texts, const ListTags& tags = {});

/// Reads any text that `writeList` gives. Beyond that, empty text is an empty list, a separator may
/// follow any last element, and in a bare text a separator stands for itself. Blanks count. Nothing
/// for unbalanced or nested braces, for text after the closing one, and for an escape character
/// with none of the four after it.
ORV_EXPORT std::optional<std::vector<std::string>> readList(std::string_view text,
                                                            const ListTags& tags = {});

/// Reads a list with the default tags from the front of `rest`, and takes it off. A bare text ends
/// before the next tag.
std::optional<std::vector<std::string>> takeList(std::string_view& rest);

}  // namespace orvlib
