#include "standalone/vesk/LineSource.h"

#include <iostream>
#include <string_view>
#include <utility>

#include "standalone/host/engine/ScriptReader.h"

namespace vesk {
namespace {

LineSource linesOf(std::string script, std::string name) {
  return [script = std::move(script), name = std::move(name), at = std::size_t{0},
          number = 0]() mutable -> std::optional<PlacedLine> {
    if (at >= script.size()) return std::nullopt;
    std::string_view rest = std::string_view(script).substr(at);
    const std::string_view line = takeLine(rest);
    at = script.size() - rest.size();
    return PlacedLine{std::string(line), name + ":" + std::to_string(++number)};
  };
}

LineSource singleLine(std::string text, std::string place) {
  if (text.find('\n') != text.npos) return linesOf(std::move(text), std::move(place));
  return [line = std::optional<PlacedLine>({std::move(text), std::move(place)})]() mutable {
    return std::exchange(line, std::nullopt);
  };
}

}  // namespace

std::optional<LineSource> openInputs(const std::vector<ProgramOptions::Input>& inputs,
                                     std::string& reason) {
  std::vector<LineSource> sources;
  int lines = 0;
  for (const ProgramOptions::Input& input : inputs) {
    if (input.kind == ProgramOptions::Input::Kind::Line) {
      sources.push_back(singleLine(input.text, "-c " + std::to_string(++lines)));
    } else if (auto script = readScript(input.text, reason, Pipes::Allowed)) {
      sources.push_back(linesOf(std::move(*script), input.text));
    } else {
      reason = "cannot read the script \"" + input.text + "\": " + reason;
      return std::nullopt;
    }
  }
  return
      [sources = std::move(sources), at = std::size_t{0}]() mutable -> std::optional<PlacedLine> {
        for (; at < sources.size(); ++at) {
          if (auto line = sources[at]()) return line;
        }
        return std::nullopt;
      };
}

LineSource standardInput() {
  return [number = 0]() mutable -> std::optional<PlacedLine> {
    std::string text;
    if (!std::getline(std::cin, text)) return std::nullopt;
    if (number == 0) text = std::string(withoutByteOrderMark(text));
    return PlacedLine{std::move(text), "standard input:" + std::to_string(++number)};
  };
}

}  // namespace vesk
