#pragma once

#include <string>
#include <vector>

namespace vesk {

/// What the command line of `vesk` asked for.
struct ProgramOptions {
  struct Input {
    enum class Kind { Line, Script };
    Kind kind;
    std::string text;  ///< the line, or the path of the script
  };

  std::vector<Input> inputs;  ///< in the order given
  std::vector<std::string> plugins;
  std::vector<std::string> libraries;
  std::string preferencesFolder;
  std::string publishedFolder;
  std::string journal;
  std::string language;
  std::string colours;  ///< file of the colour configuration; empty for the usual one
  std::string scale;    ///< of the interface, in percent; empty for the user's
  bool batch = false;   ///< never prompt; whoever runs the lines sets it when nobody can answer
  bool gui = false;
  bool transcript = false;
  bool check = false;
  bool update = false;
  bool keepGoing = false;
  bool noPlugin = false;
  bool recover = false;  ///< run the lines again of the last session that ended abruptly
  bool discard = false;  ///< forget the sessions that ended abruptly
  bool help = false;
  bool version = false;
};

/// Reads the command line. Returns what is wrong with it; empty when nothing is.
std::string readProgramOptions(int argc, char** argv, ProgramOptions& options);

/// The text of `--help`.
std::string programHelp();

}  // namespace vesk
