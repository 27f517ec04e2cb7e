// What a line costs on its way from text to work: reading it, finding its command, making the
// command object, sorting its arguments, and doing the work. Ends with ratios of one run, among
// them that to the evaluation of a line of the same shape by tclsh, where that is installed.

#include <benchmark/benchmark.h>

#include <cstdio>
#include <iostream>
#include <map>
#include <string>
#include <vector>

#include "platform/OpenVesk/KArgDatabase.h"
#include "standalone/host/engine/HostAccess.h"
#include "standalone/host/engine/HostSession.h"

namespace {

constexpr std::size_t kDistinctLines = 1024;
constexpr std::size_t kTokensOfALine = 5;

/// As a graph command reads its line: two texts and one flag with a text.
class TypicalCommand : public KPxCommand {
 public:
  static KPxCommand* creator() { return new TypicalCommand; }

  static KSyntax createSyntax() {
    KSyntax syntax;
    syntax.addArg(KSyntax::ArgString);
    syntax.addArg(KSyntax::ArgString);
    syntax.addFlag("-an", "-addNode", KSyntax::ArgString);
    syntax.addFlag("-rn", "-renameNode", KSyntax::ArgString, KSyntax::ArgString);
    syntax.addFlag("-ln", "-listNodes");
    return syntax;
  }

  KStatus doIt(const KArgList& args) override {
    KStatus status;
    const KArgDatabase db(syntax(), args, &status);
    db.getCommandArgument(0, container_);
    db.getCommandArgument(1, path_);
    if (db.isFlagSet("-an")) db.getFlagArgument("-an", 0, type_);
    benchmark::DoNotOptimize(type_.asUTF8());
    return status;
  }

 private:
  KString container_;
  KString path_;
  KString type_;
};

std::string lineText(std::size_t i) {
  return "typical \"graph" + std::to_string(i) + "\" \"/group" + std::to_string(i * 7) +
         "\" -addNode \"core::math::add" + std::to_string(i % 97) + "\"";
}

const std::vector<std::string>& lines() {
  static const std::vector<std::string> all = [] {
    std::vector<std::string> made;
    for (std::size_t i = 0; i < kDistinctLines; ++i) made.push_back(lineText(i));
    return made;
  }();
  return all;
}

class Session {
 public:
  Session() {
    host.registry().add(
        {"typical", TypicalCommand::creator, TypicalCommand::createSyntax(), nullptr, ""});
  }
  vesk::HostSession host;
};

KArgList argumentsOf(const std::string& line) {
  const vesk::TokenizedText read = vesk::tokenize(line);
  auto arguments = std::make_shared<vesk::ArgumentArray>();
  const auto& tokens = read.statements.front().tokens;
  for (std::size_t i = 1; i < tokens.size(); ++i) {
    arguments->push_back({HostAccess::string(tokens[i].text), tokens[i].kind});
  }
  return HostAccess::argList(arguments);
}

void wholeLine(benchmark::State& state) {
  Session session;
  vesk::ResultValue result;
  std::size_t i = 0;
  for (auto _ : state) {
    session.host.engine().run(lines()[i++ % kDistinctLines], result);
  }
  state.SetItemsProcessed(state.iterations());
}

void readTheLine(benchmark::State& state) {
  std::size_t i = 0;
  for (auto _ : state) {
    benchmark::DoNotOptimize(vesk::tokenize(lines()[i++ % kDistinctLines]));
  }
}

void findAndMakeTheCommand(benchmark::State& state) {
  Session session;
  for (auto _ : state) {
    const auto entry = session.host.registry().find("typical");
    std::unique_ptr<KPxCommand> command(entry->creator());
    HostAccess::bind(*command, entry);
    benchmark::DoNotOptimize(command.get());
  }
}

void sortTheArguments(benchmark::State& state) {
  const KSyntax syntax = TypicalCommand::createSyntax();
  const KArgList arguments = argumentsOf(lines().front());
  for (auto _ : state) {
    const KArgDatabase db(syntax, arguments);
    benchmark::DoNotOptimize(&db);
  }
}

void directCall(benchmark::State& state) {
  Session session;
  const auto entry = session.host.registry().find("typical");
  const KArgList arguments = argumentsOf(lines().front());
  std::unique_ptr<KPxCommand> command(entry->creator());
  HostAccess::bind(*command, entry);
  for (auto _ : state) benchmark::DoNotOptimize(command->doIt(arguments));
}

BENCHMARK(wholeLine);
BENCHMARK(readTheLine);
BENCHMARK(findAndMakeTheCommand);
BENCHMARK(sortTheArguments);
BENCHMARK(directCall);

class CollectingReporter : public benchmark::ConsoleReporter {
 public:
  void ReportRuns(const std::vector<Run>& runs) override {
    for (const Run& run : runs) nanoseconds[run.benchmark_name()] = run.GetAdjustedCPUTime();
    ConsoleReporter::ReportRuns(runs);
  }
  std::map<std::string, double> nanoseconds;
};

/// Nanoseconds that tclsh takes to evaluate a distinct line of a command with four quoted arguments
/// and no work; 0 without tclsh.
double tclNanoseconds() {
  constexpr const char* kCommand = R"(command -v tclsh >/dev/null && tclsh <<'END'
proc typical {a b c d} {}
for {set i 0} {$i < 200000} {incr i} {
  lappend lines "typical \"graph$i\" \"/group[expr {$i*7}]\" \"-addNode\" \"core::math::add[expr {$i%97}]\""
}
set microseconds [lindex [time {foreach line $lines {eval $line}}] 0]
puts [expr {$microseconds*1000.0/200000}]
END
)";
  double value = 0;
  if (FILE* pipe = popen(kCommand, "r")) {
    if (std::fscanf(pipe, "%lf", &value) != 1) value = 0;
    pclose(pipe);
  }
  return value;
}

void printRatios(std::map<std::string, double>& nanoseconds) {
  const double whole = nanoseconds["wholeLine"];
  std::printf("\nlines a second             %12.0f\n", 1e9 / whole);
  std::printf("a line / a direct doIt     %12.2f\n", whole / nanoseconds["directCall"]);
  std::printf("nanoseconds a token        %12.1f\n", whole / kTokensOfALine);
  if (const double tcl = tclNanoseconds(); tcl > 0) {
    std::printf("tclsh eval, nanoseconds    %12.1f\n", tcl);
    std::printf("a line / tclsh eval        %12.2f\n", whole / tcl);
  } else {
    std::printf("tclsh is not installed: no comparison\n");
  }
}

}  // namespace

int main(int argc, char** argv) {
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
  CollectingReporter reporter;
  benchmark::RunSpecifiedBenchmarks(&reporter);
  printRatios(reporter.nanoseconds);
  return 0;
}
