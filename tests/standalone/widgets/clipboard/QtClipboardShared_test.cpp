// Two programs at one clipboard, on a display of their own.

#include <gmock/gmock.h>

#include <QProcess>
#include <memory>

#include "standalone/widgets/clipboard/QtClipboard.h"
#include "testPaths.h"
#include "tests/support/HiddenDisplay.h"

namespace {

using testing::HasSubstr;

constexpr const char* kPeer = VESK_BUILD_DIR "/bin/clipboardPeer";
constexpr int kPatience = HiddenDisplay::kPatience;

/// A program that keeps something on the clipboard while it lives.
class Owner {
 public:
  Owner(const HiddenDisplay& display, const char* what, const std::string& text) {
    process_.setProcessEnvironment(display.environment());
    process_.start(kPeer, {what});
    process_.write((std::to_string(text.size()) + "\n" + text).c_str(),
                   static_cast<qint64>(std::to_string(text.size()).size() + 1 + text.size()));
    while (!process_.canReadLine() && process_.waitForReadyRead(kPatience)) {
    }
    EXPECT_EQ(process_.readLine().trimmed(), "ready") << process_.readAllStandardError().data();
  }
  ~Owner() {
    process_.closeWriteChannel();
    EXPECT_TRUE(process_.waitForFinished(kPatience));
  }

 private:
  QProcess process_;
};

class SharedClipboard : public testing::Test {
 protected:
  /// What another program prints.
  std::string ask(const char* what) {
    QProcess process;
    process.setProcessEnvironment(display.environment());
    process.start(kPeer, {what});
    EXPECT_TRUE(process.waitForFinished(kPatience)) << what;
    EXPECT_EQ(process.exitCode(), 0) << process.readAllStandardError().data();
    return process.readAllStandardOutput().toStdString();
  }

  HiddenDisplay display;
};

const std::string kText = "vesk-copy\nnode a Größe 数据 🙂\nend\n";

TEST_F(SharedClipboard, ACopyIsPastedInAnotherProgram) {
  const Owner owner(display, "copy", kText);
  EXPECT_EQ(ask("paste"), kText);
}

TEST_F(SharedClipboard, ACopyIsThereInBothFormats) {
  const Owner owner(display, "copy", kText);
  const std::string formats = ask("formats");
  EXPECT_THAT(formats, HasSubstr(std::string(orvuilib::QtClipboard::kMimeType) + "\n"));
  EXPECT_THAT(formats, HasSubstr("text/plain"));
}

TEST_F(SharedClipboard, PlainTextOfAnotherProgramIsPasted) {
  const Owner owner(display, "plain", kText);
  EXPECT_EQ(ask("paste"), kText);
}

TEST_F(SharedClipboard, ALargeCopyArrivesWhole) {
  std::string large;
  for (int i = 0; i < 200'000; ++i) large += "line " + std::to_string(i) + "\n";
  const Owner owner(display, "copy", large);
  EXPECT_TRUE(ask("paste") == large);
}

TEST_F(SharedClipboard, TheLastCopyIsTheOne) {
  const Owner first(display, "copy", "first");
  const Owner second(display, "copy", "second");
  EXPECT_EQ(ask("paste"), "second");
}

TEST_F(SharedClipboard, WithItsProgramACopyGoes) {
  { const Owner owner(display, "copy", kText); }
  EXPECT_EQ(ask("paste"), "");
}

}  // namespace
