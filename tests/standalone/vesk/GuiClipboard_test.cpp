// Two windows at one clipboard, on a display of their own.

#include <gmock/gmock.h>

#include <QFile>
#include <QProcess>

#include "testPaths.h"
#include "tests/standalone/vesk/ProgramRun.h"
#include "tests/support/HiddenDisplay.h"

namespace {

using testing::HasSubstr;

constexpr const char* kProgram = VESK_BUILD_DIR "/bin/vesk";

class GuiClipboard : public testing::Test {
 protected:
  void start(QProcess& process, const QStringList& lines, const QStringList& options = {}) {
    QStringList arguments{"--gui", "--prefs", QString::fromStdString(folder.path().string())};
    arguments << options;
    for (const QString& line : lines) arguments << "-c" << line;
    process.setProcessEnvironment(display.environment());
    process.start(kProgram, arguments);
  }

  HiddenDisplay display;
  TemporaryFolder folder;
};

TEST_F(GuiClipboard, WhatIsCopiedInOneIsPastedInTheOther) {
  QProcess source;
  start(source,
        {R"(createNode orvGraph -name "a")", R"(orvCompound "a" "/" -addNode "core::math::add")",
         R"(orvNode "a" "/add" -setPortDefaultValues "a" "5")",
         R"(orvCopy "a" "/" -sourceNode "add")", R"(echo "copied")"});
  while (!source.readAllStandardOutput().contains("copied")) {
    ASSERT_TRUE(source.waitForReadyRead(HiddenDisplay::kPatience))
        << source.readAllStandardError().toStdString();
  }

  QProcess target;
  start(target, {R"(createNode orvGraph -name "b")", R"(orvPaste "b" "/")",
                 R"(orvCompound "b" "/" -listNodes)", R"(evaluate "b" "/add.a")", "quit"});
  ASSERT_TRUE(target.waitForFinished(HiddenDisplay::kPatience));
  EXPECT_EQ(target.exitCode(), 0) << target.readAllStandardError().toStdString();
  EXPECT_THAT(target.readAllStandardOutput().toStdString(), HasSubstr("add\n5\n"));

  source.terminate();
  source.waitForFinished(HiddenDisplay::kPatience);
}

TEST_F(GuiClipboard, InBatchACopyStaysInTheProgram) {
  QProcess source;
  start(source,
        {R"(createNode orvGraph -name "a")", R"(orvCompound "a" "/" -addNode "core::math::add")",
         R"(orvCopy "a" "/" -sourceNode "add")", R"(orvPaste "a" "/")",
         R"(orvCompound "a" "/" -listNodes)", R"(echo "copied")", "source /dev/stdin"},
        {"--batch"});
  QByteArray out;
  while (!out.contains("copied")) {
    ASSERT_TRUE(source.waitForReadyRead(HiddenDisplay::kPatience));
    out += source.readAllStandardOutput();
  }
  EXPECT_THAT(out.toStdString(), HasSubstr("add\nadd1\n"));

  QProcess target;
  start(target, {R"(createNode orvGraph -name "b")", R"(orvPaste "b" "/")", "quit"},
        {"--keep-going"});
  ASSERT_TRUE(target.waitForFinished(HiddenDisplay::kPatience));
  EXPECT_EQ(target.exitCode(), 1) << "nothing is there to paste";
  source.closeWriteChannel();
  source.waitForFinished(HiddenDisplay::kPatience);
}

}  // namespace
