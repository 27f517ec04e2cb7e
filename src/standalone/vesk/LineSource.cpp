#include "standalone/vesk/LineSource.h"

#include <algorithm>
#include <iostream>
#include <utility>

#include "standalone/host/engine/ScriptReader.h"

namespace vesk {
namespace {

LineSource linesOf(std::string script, std::string name) {
  return [script = std::move(script), name = std::move(name), at = std::size_t{0},
          number = 0]() mutable -> std::optional<PlacedLine> {
    if (at >= script.size()) return std::nullopt;
    const std::size_t end = std::min(script.find('\n', at), script.size());
    PlacedLine line{script.substr(at, end - at), name + ":" + std::to_string(++number)};
    at = end + 1;
    return line;
  };
}

LineSource singleLine(std::string text, std::string place) {
  if (text.find('\n') != text.npos) return linesOf(std::move(text), std::move(place));
  return [line = std::optional<PlacedLine>({std::move(text), std::move(place)})]() mutable {
    return std::exchange(line, std::nullopt);
  };
}

}  // namespace

std::optional<LineSource> openInput(const ProgramOptions::Input& input, std::size_t number,
                                    std::string& reason) {
  if (input.kind == ProgramOptions::Input::Kind::Line) {
    return singleLine(input.text, "-c " + std::to_string(number));
  }
  auto script = readScript(input.text, reason);
  if (!script) return std::nullopt;
  return linesOf(std::move(*script), input.text);
}

LineSource standardInput() {
  return [number = 0]() mutable -> std::optional<PlacedLine> {
    std::string text;
    if (!std::getline(std::cin, text)) return std::nullopt;
    return PlacedLine{std::move(text), "standard input:" + std::to_string(++number)};
  };
}

}  // namespace vesk
