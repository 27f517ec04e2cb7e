#pragma once

#include <gtest/gtest.h>

#include <QProcess>

/// A display without a screen that anyone sees.
class HiddenDisplay {
 public:
  /// Milliseconds to wait for another program.
  static constexpr int kPatience = 30000;

  HiddenDisplay() {
    server_.start("Xvfb", {"-displayfd", "1", "-screen", "0", "640x480x24", "-nolisten", "tcp"});
    while (!server_.canReadLine()) {
      if (!server_.waitForReadyRead(kPatience)) {
        ADD_FAILURE() << "Xvfb does not start: " << server_.errorString().toStdString();
        return;
      }
    }
    name_ = ":" + QString::fromUtf8(server_.readLine()).trimmed();
  }
  ~HiddenDisplay() {
    server_.terminate();
    if (!server_.waitForFinished(kPatience)) server_.kill();
    server_.waitForFinished(kPatience);
  }

  QProcessEnvironment environment() const {
    QProcessEnvironment result = QProcessEnvironment::systemEnvironment();
    result.insert("DISPLAY", name_);
    result.insert("QT_QPA_PLATFORM", "xcb");
    return result;
  }

 private:
  QProcess server_;
  QString name_;
};
