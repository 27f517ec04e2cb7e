#pragma once

#include <string>
#include <string_view>

#include "platform/OpenVesk/KArgDatabase.h"
#include "standalone/host/engine/HostAccess.h"
#include "standalone/host/language/Tokenizer.h"
#include "tests/support/ProbeCommand.h"

namespace hosttest {

/// The arguments that a line writes; without a command's name.
inline KArgList argumentsOf(std::string_view line) {
  auto arguments = std::make_shared<vesk::ArgumentArray>();
  const vesk::TokenizedText read = vesk::tokenize(line);
  EXPECT_FALSE(read.error.has_value()) << line;
  for (const vesk::Statement& statement : read.statements) {
    for (const vesk::Token& token : statement.tokens) {
      arguments->push_back({HostAccess::string(token.text), token.kind});
    }
  }
  return HostAccess::argList(std::move(arguments));
}

/// Arguments read against a syntax, outside any session: refusals show in the status alone.
class Reading {
 public:
  Reading(const KSyntax& syntax, std::string_view line)
      : database(syntax, argumentsOf(line), &status_) {}

  KStatusCode status() const { return status_.statusCode(); }

  std::string flagText(const char* flag, unsigned index = 0) const {
    return database.flagArgumentString(flag, index).asUTF8();
  }
  std::string positional(unsigned index) const {
    KString value("none");
    database.getCommandArgument(index, value);
    return value.asUTF8();
  }

 private:
  KStatus status_ = StatusSuccess;

 public:
  const KArgDatabase database;
};

/// What the user is told when `probe ARGUMENTS` is read by a command of this syntax.
inline Texts messagesOf(const KSyntax& syntax, const std::string& arguments) {
  ProbeHost host;
  addProbe(host, "probe",
           {.doIt =
                [](KPxCommand& command, const KArgList& list) {
                  KStatus status;
                  const KArgParser parser(command.syntax(), list, &status);
                  return status;
                }},
           syntax);
  host.status("probe " + arguments);
  return host.takeMessages();
}

}  // namespace hosttest
