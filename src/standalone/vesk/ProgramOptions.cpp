#include "standalone/vesk/ProgramOptions.h"

#include <getopt.h>

#include <iterator>

namespace vesk {
namespace {

/// One option: how it is written, what it does to the options, and its line in the help.
struct OptionRow {
  const char* name;
  char letter;           ///< 0 for none
  const char* argument;  ///< null for none
  const char* help;
  void (*apply)(ProgramOptions&, const char* argument);
};

using Input = ProgramOptions::Input;

const OptionRow kOptions[] = {
    {"command", 'c', "LINE", "run a line; may be repeated, and mixed with scripts",
     [](ProgramOptions& o, const char* a) {
       o.inputs.push_back({Input::Kind::Line, a});
     }},
    {"batch", 0, nullptr, "never prompt", [](ProgramOptions& o, const char*) { o.batch = true; }},
    {"keep-going", 0, nullptr, "go on after a line that fails",
     [](ProgramOptions& o, const char*) { o.keepGoing = true; }},
    {"transcript", 0, nullptr, "print lines, messages and results as a transcript",
     [](ProgramOptions& o, const char*) { o.transcript = true; }},
    {"check", 0, nullptr, "run the lines of transcript files again and show what differs",
     [](ProgramOptions& o, const char*) { o.check = true; }},
    {"update", 0, nullptr, "with --check: write what differs into the files",
     [](ProgramOptions& o, const char*) { o.update = true; }},
    {"plugin", 0, "PATH", "load this module instead of the ORV one; may be repeated",
     [](ProgramOptions& o, const char* a) { o.plugins.emplace_back(a); }},
    {"no-plugin", 0, nullptr, "load no module",
     [](ProgramOptions& o, const char*) { o.noPlugin = true; }},
    {"library", 0, "DIR", "read runtimes from here instead of the shipped ones; may be repeated",
     [](ProgramOptions& o, const char* a) { o.libraries.emplace_back(a); }},
    {"prefs", 0, "DIR", "keep the option variables here (also: VESK_PREFS_DIR)",
     [](ProgramOptions& o, const char* a) { o.preferencesFolder = a; }},
    {"published", 0, "DIR", "keep published compounds here (also: VESK_PUBLISHED_DIR)",
     [](ProgramOptions& o, const char* a) { o.publishedFolder = a; }},
    {"journal", 0, "FILE", "write the lines that ran to this file",
     [](ProgramOptions& o, const char* a) { o.journal = a; }},
    {"recover", 0, nullptr, "run the lines of a session that ended abruptly again, then go on",
     [](ProgramOptions& o, const char*) { o.recover = true; }},
    {"discard", 0, nullptr, "forget the sessions that ended abruptly",
     [](ProgramOptions& o, const char*) { o.discard = true; }},
    {"colors", 0, "FILE", "use this colour configuration (also: OCIO)",
     [](ProgramOptions& o, const char* a) { o.colours = a; }},
    {"language", 0, "NAME", "show texts in this language, such as de (default: the locale's)",
     [](ProgramOptions& o, const char* a) { o.language = a; }},
    {"gui", 0, nullptr, "open the window; with --batch only until the lines have run",
     [](ProgramOptions& o, const char*) { o.gui = true; }},
    {"scale", 0, "PERCENT", "with --gui: scale the interface to 100, 125, 150, 175 or 200",
     [](ProgramOptions& o, const char* a) { o.scale = a; }},
    {"version", 0, nullptr, "print the version and exit",
     [](ProgramOptions& o, const char*) { o.version = true; }},
    {"help", 'h', nullptr, "print this and exit",
     [](ProgramOptions& o, const char*) { o.help = true; }},
};

constexpr int kFirstLongOption = 256;
constexpr int kPlainArgument = 1;  // what getopt gives for each argument that is no option

std::vector<option> longOptions() {
  std::vector<option> rows;
  for (std::size_t i = 0; i < std::size(kOptions); ++i) {
    rows.push_back({kOptions[i].name, kOptions[i].argument ? required_argument : no_argument,
                    nullptr, kFirstLongOption + static_cast<int>(i)});
  }
  rows.push_back({});
  return rows;
}

const OptionRow* findOption(int code) {
  if (code >= kFirstLongOption) return &kOptions[code - kFirstLongOption];
  for (const OptionRow& row : kOptions) {
    if (row.letter == code) return &row;
  }
  return nullptr;
}

/// As it was written: a letter may stand among others, behind one "-".
std::string unknownOption(const char* argument) {
  const bool letter = optopt > ' ' && optopt < kFirstLongOption;
  return letter ? std::string("-") + static_cast<char>(optopt) : argument;
}

/// Only what is written just so: "0150" and "150.0" are no scale.
std::string problemOfScale(const ProgramOptions& options) {
  if (options.scale.empty()) return {};
  if (!options.gui) return "--scale goes with --gui";
  for (const int scale : {100, 125, 150, 175, 200}) {
    if (options.scale == std::to_string(scale)) return {};
  }
  return "--scale takes 100, 125, 150, 175 or 200, not " + options.scale;
}

std::string problemOfRecovery(const ProgramOptions& options) {
  if (!options.recover && !options.discard) return {};
  const std::string option = options.recover ? "--recover" : "--discard";
  if (options.recover && options.discard) return "--recover and --discard exclude each other";
  if (options.check) return "--check and " + option + " exclude each other";
  if (options.transcript) return "--transcript and " + option + " exclude each other";
  return options.journal.empty() ? "" : "--journal and " + option + " exclude each other";
}

std::string contradiction(const ProgramOptions& options) {
  if (const std::string problem = problemOfRecovery(options); !problem.empty()) return problem;
  if (const std::string problem = problemOfScale(options); !problem.empty()) return problem;
  if (options.update && !options.check) return "--update goes with --check";
  if (options.check && options.transcript) return "--check and --transcript exclude each other";
  if (options.noPlugin && !options.plugins.empty()) {
    return "--plugin and --no-plugin exclude each other";
  }
  if (!options.check) return {};
  for (const Input& input : options.inputs) {
    if (input.kind == Input::Kind::Line) return "--check takes transcript files, not -c";
  }
  return options.inputs.empty() ? "--check needs a transcript file" : "";
}

}  // namespace

std::string readProgramOptions(int argc, char** argv, ProgramOptions& options) {
  const std::vector<option> rows = longOptions();
  optind = 0;
  opterr = 0;
  for (int code; (code = getopt_long(argc, argv, "-:c:h", rows.data(), nullptr)) != -1;) {
    const char* written = argv[optind - 1];
    if (code == ':') return std::string(written) + " needs an argument";
    if (code == kPlainArgument) {
      options.inputs.push_back({Input::Kind::Script, optarg});
    } else if (const OptionRow* row = code == '?' ? nullptr : findOption(code)) {
      row->apply(options, optarg);
    } else {
      return "unknown option " + unknownOption(written);
    }
  }
  for (int i = optind; i < argc; ++i) options.inputs.push_back({Input::Kind::Script, argv[i]});
  return contradiction(options);
}

std::string programHelp() {
  constexpr std::size_t kColumn = 24;
  std::string text =
      "Usage: vesk [options] [script...]\n"
      "Runs lines of the command language: those of -c and of scripts in the order given, else\n"
      "those of standard input, at a prompt when that is a terminal.\n\n";
  for (const OptionRow& row : kOptions) {
    std::string line = row.letter ? std::string("  -") + row.letter + ", --" : "      --";
    line += row.name;
    if (row.argument) line += std::string(" ") + row.argument;
    line.append(line.size() + 2 < kColumn ? kColumn - line.size() : 2, ' ');
    text += line + row.help + "\n";
  }
  return text +
         "\nExit status: 0 when every line succeeded, 1 when one failed, 2 when the program could\n"
         "not start as asked or not write its output.\n";
}

}  // namespace vesk
