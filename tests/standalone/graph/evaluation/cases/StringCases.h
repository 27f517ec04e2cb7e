#pragma once

#include "tests/standalone/graph/evaluation/KernelCase.h"

/// Characters of two, three and four bytes: a with two dots, the euro sign, a smiling face.
#define TWO "\xc3\xa4"
#define THREE "\xe2\x82\xac"
#define FOUR "\xf0\x9f\x98\x80"

inline constexpr KernelCase kStringCases[] = {
    {"concatenate", "ab|cd", "abcd"},
    {"concatenate", "|", ""},
    {"length", "a" TWO THREE FOUR, "4"},
    {"length", "", "0"},
    {"length",
     "\x80\x80"
     "a\xff",
     "3"},
    {"substring", "a" TWO THREE FOUR "b|1|2", TWO THREE},
    {"substring", "abc|-5|2", "ab"},
    {"substring", "abc|1|-1", "bc"},
    {"substring", "abc|1|2147483647", "bc"},
    {"substring", "abc|9|1", ""},
    {"substring", "abc|1|0", ""},
    {"find", TWO "b" TWO "b|b|0", "1"},
    {"find", TWO "b" TWO "b|b|2", "3"},
    {"find", "abc|d|0", "-1"},
    {"find", "abc|a|1", "-1"},
    {"find", "abc|a|-7", "0"},
    {"find", "abc||3", "3"},
    {"find", "abc||4", "-1"},
    {"find", "||0", "0"},
    {"replace", "aaa|aa|b", "ba"},
    {"replace", "a" TWO "a|" TWO "|", "aa"},
    {"replace", "abc||x", "abc"},
    {"replace", "a.b.c|.|..", "a..b..c"},
    {"contains", "abc|bc", "true"},
    {"contains", "abc|cb", "false"},
    {"contains", "|", "true"},
    {"starts_with", "abc|ab", "true"},
    {"starts_with", "abc|bc", "false"},
    {"starts_with", "abc|", "true"},
    {"ends_with", "abc|bc", "true"},
    {"ends_with", "bc|abc", "false"},
    {"to_upper", "az" TWO "09{`", "AZ" TWO "09{`"},
    {"to_upper", "", ""},
    {"to_lower", "AZ[@" TWO, "az[@" TWO},
    {"to_lower", "", ""},
    {"trim", " \t\r\na b\n ", "a b"},
    {"trim", " \n", ""},
    {"repeat", "ab|3", "ababab"},
    {"repeat", "ab|0", ""},
    {"repeat", "ab|-2147483648", ""},
    {"repeat", "ab|8388609", ""},
    {"repeat", "|2147483647", ""},
    {"split", "a,b,,c|,", "a,b,'',c"},
    {"split", ", |, ", "'',''"},
    {"split", "a" TWO FOUR "|", "a," TWO "," FOUR},
    {"split", "|,", "''"},
    {"split", "|", "''"},
    {"split", "abc|x", "abc"},
    {"join", "a,'',b|-", "a--b"},
    {"join", "|-", ""},
    {"join", "a|-", "a"},
};

#undef TWO
#undef THREE
#undef FOUR
