#include "standalone/vesk/TextDiff.h"

#include <algorithm>
#include <span>
#include <vector>

#include "standalone/host/engine/ScriptReader.h"

namespace vesk {
namespace {

using Lines = std::vector<std::string_view>;

struct Edit {
  char mark;  ///< ' ', '-' or '+'
  std::string_view line;
};

Lines splitLines(std::string_view text) {
  Lines lines;
  while (!text.empty()) lines.push_back(takeLine(text));
  return lines;
}

/// Walks along a longest common subsequence. It takes time and memory for each pair of lines.
std::vector<Edit> editsBetweenAll(std::span<const std::string_view> before,
                                  std::span<const std::string_view> after) {
  const std::size_t width = after.size() + 1;
  std::vector<unsigned> common((before.size() + 1) * width);
  for (std::size_t i = before.size(); i-- > 0;) {
    for (std::size_t j = after.size(); j-- > 0;) {
      common[i * width + j] =
          before[i] == after[j] ? common[(i + 1) * width + j + 1] + 1
                                : std::max(common[(i + 1) * width + j], common[i * width + j + 1]);
    }
  }
  std::vector<Edit> edits;
  std::size_t i = 0;
  std::size_t j = 0;
  while (i < before.size() || j < after.size()) {
    if (i < before.size() && j < after.size() && before[i] == after[j]) {
      edits.push_back({' ', before[i++]});
      ++j;
    } else if (j == after.size() ||
               (i < before.size() && common[(i + 1) * width + j] >= common[i * width + j + 1])) {
      edits.push_back({'-', before[i++]});
    } else {
      edits.push_back({'+', after[j++]});
    }
  }
  return edits;
}

/// Only what lies between the lines that are the same at both ends is compared in full.
std::vector<Edit> editsBetween(const Lines& before, const Lines& after) {
  const auto start = std::ranges::mismatch(before, after).in1 - before.begin();
  const auto end =
      std::mismatch(before.rbegin(), before.rend() - start, after.rbegin(), after.rend() - start)
          .first -
      before.rbegin();
  std::vector<Edit> edits;
  const auto keep = [&edits](auto first, auto last) {
    for (; first != last; ++first) edits.push_back({' ', *first});
  };
  keep(before.begin(), before.begin() + start);
  const auto middle = editsBetweenAll({before.begin() + start, before.end() - end},
                                      {after.begin() + start, after.end() - end});
  edits.insert(edits.end(), middle.begin(), middle.end());
  keep(before.end() - end, before.end());
  return edits;
}

bool isNearChange(const std::vector<Edit>& edits, std::size_t at) {
  constexpr std::size_t kContext = 2;
  const std::size_t first = at < kContext ? 0 : at - kContext;
  const std::size_t last = std::min(at + kContext + 1, edits.size());
  return std::any_of(edits.begin() + first, edits.begin() + last,
                     [](const Edit& edit) { return edit.mark != ' '; });
}

}  // namespace

std::string textDiff(std::string_view before, std::string_view after) {
  if (before == after) return {};
  const std::vector<Edit> edits = editsBetween(splitLines(before), splitLines(after));
  std::string text;
  bool skipping = false;
  for (std::size_t i = 0; i < edits.size(); ++i) {
    const bool shown = isNearChange(edits, i);
    if (shown) {
      text += edits[i].mark;
      text += ' ';
      text += edits[i].line;
      text += '\n';
    } else if (!skipping) {
      text += "...\n";
    }
    skipping = !shown;
  }
  return text.empty() || std::all_of(edits.begin(), edits.end(),
                                     [](const Edit& edit) { return edit.mark == ' '; })
             ? "(the line ends differ)\n"
             : text;
}

}  // namespace vesk
