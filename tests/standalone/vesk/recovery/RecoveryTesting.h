#pragma once

#include <gtest/gtest.h>
#include <signal.h>

#include <QFile>
#include <QProcess>
#include <chrono>
#include <thread>

#include "tests/standalone/vesk/ProgramRun.h"

/// A running `vesk` that is fed lines through a pipe, with settings in a folder that lasts.
class FedProgram {
 public:
  explicit FedProgram(const TemporaryFolder& preferences, const QStringList& options = {},
                      const std::string& folder = ".") {
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.remove("LANG");
    environment.insert("VESK_PREFS_DIR", QString::fromStdString(preferences.path().string()));
    environment.insert("VESK_PUBLISHED_DIR", QString::fromStdString(preferences.path().string()));
    process_.setProcessEnvironment(environment);
    process_.setWorkingDirectory(QString::fromStdString(folder));
    process_.start(QString::fromStdString(kVesk), QStringList{"--keep-going"} + options);
    EXPECT_TRUE(process_.waitForStarted());
  }
  ~FedProgram() { kill(); }

  void write(const std::string& lines) {
    process_.write(lines.data(), static_cast<qint64>(lines.size()));
    while (process_.bytesToWrite() > 0 && process_.waitForBytesWritten()) {
    }
  }

  /// Writes a line and waits until it has run.
  void run(const std::string& line) {
    out_.clear();
    write(line + "\necho \"done with it\"\n");
    while (!out_.endsWith("done with it\n")) {
      ASSERT_TRUE(process_.waitForReadyRead(30000))
          << process_.readAllStandardError().toStdString();
      out_ += process_.readAllStandardOutput();
    }
  }

  /// As a power cut does.
  void kill() {
    if (process_.state() == QProcess::NotRunning) return;
    ::kill(static_cast<pid_t>(process_.processId()), SIGKILL);
    process_.waitForFinished();
  }

  /// Lets it end by itself.
  void end() {
    process_.closeWriteChannel();
    process_.waitForFinished();
  }

  QByteArray errors() { return process_.readAllStandardError(); }

 private:
  QProcess process_;
  QByteArray out_;
};
