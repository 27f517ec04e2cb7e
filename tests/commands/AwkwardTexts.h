#pragma once

#include <ostream>
#include <string>

/// A text that is no name, and the name that a graph makes of it.
struct Awkward {
  const char* name;
  std::string text;
  std::string asName;  ///< what the graph makes of it
};

inline const Awkward kAwkward[] = {
    {"quotes", R"(a "b" 'c')", "a__b___c_"},
    {"backslashes", R"(a\b\\c\)", "a_b__c_"},
    {"blanks", "  a b ", "__a_b_"},
    {"lineBreaks", "a\nb\r\tc\n", "a_b__c_"},
    {"umlauts", "Größe", "Gr__e"},
    {"han", "数据", "__"},
    {"emoji", "🙂", "_"},
    {"marks", "^1s ^2s %s", "_1s__2s__s"},
    {"path", "/a/b", "_a_b"},
    {"list", "{a,b}", "_a_b_"},
    {"dash", "-create", "_create"},
    {"digits", "12", "_12"},
    {"long", std::string(1000, 'n'), std::string(1000, 'n')},
};

inline void PrintTo(const Awkward& awkward, std::ostream* out) { *out << awkward.name; }
