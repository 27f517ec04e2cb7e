#pragma once

#include <QProcess>
#include <fstream>
#include <map>
#include <sstream>
#include <string>
#include <vector>

#include "testPaths.h"
#include "tests/standalone/graph/TemporaryFolder.h"

inline const std::string kVesk = VESK_BUILD_DIR "/bin/vesk";

/// How a child process ended: `status` is -1 when it did not end by itself.
struct ProgramRun {
  int status = -1;
  std::string out;
  std::string err;
};

struct ProgramSetting {
  std::string input = {};
  std::map<std::string, std::string> variables = {};
  std::string folder = {};  ///< to run in; empty for that of the test
};

/// Runs a program with the environment of the test, less what would change texts or settings.
inline ProgramRun runProcess(const std::string& program, const std::vector<std::string>& arguments,
                             const ProgramSetting& setting = {}) {
  const TemporaryFolder preferences;
  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
  for (const char* name :
       {"LANG", "LC_ALL", "LC_MESSAGES", "LANGUAGE", "KESTRIM_DUMP_VERSION_INFO"}) {
    environment.remove(name);
  }
  environment.insert("VESK_PREFS_DIR", QString::fromStdString(preferences.path().string()));
  environment.insert("VESK_PUBLISHED_DIR", QString::fromStdString(preferences.path().string()));
  for (const auto& [name, value] : setting.variables) {
    environment.insert(QString::fromStdString(name), QString::fromStdString(value));
  }
  QStringList list;
  for (const std::string& argument : arguments) list << QString::fromStdString(argument);

  QProcess process;
  process.setProcessEnvironment(environment);
  if (!setting.folder.empty()) process.setWorkingDirectory(QString::fromStdString(setting.folder));
  process.start(QString::fromStdString(program), list);
  process.write(setting.input.data(), static_cast<qint64>(setting.input.size()));
  process.closeWriteChannel();
  ProgramRun run;
  if (process.waitForFinished(60000) && process.exitStatus() == QProcess::NormalExit) {
    run.status = process.exitCode();
  }
  run.out = process.readAllStandardOutput().toStdString();
  run.err = process.readAllStandardError().toStdString();
  return run;
}

inline ProgramRun runVesk(const std::vector<std::string>& arguments,
                          const ProgramSetting& setting = {}) {
  return runProcess(kVesk, arguments, setting);
}

inline ProgramRun runShell(const std::string& line, const ProgramSetting& setting = {}) {
  return runProcess("/bin/bash", {"-c", line}, setting);
}

/// Empty when there is no such file.
inline std::string readWholeFile(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  std::ostringstream text;
  text << file.rdbuf();
  return text.str();
}
