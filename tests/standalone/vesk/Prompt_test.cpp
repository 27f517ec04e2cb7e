#include "standalone/vesk/Prompt.h"

#include <gmock/gmock.h>
#include <poll.h>
#include <pty.h>
#include <sys/wait.h>
#include <termios.h>
#include <unistd.h>

#include <csignal>

#include "standalone/host/engine/HostSession.h"
#include "tests/standalone/vesk/ProgramRun.h"

namespace vesk {
namespace {

using ::testing::HasSubstr;

/// The program at a terminal.
class Terminal {
 public:
  explicit Terminal(const std::string& preferences, const char* option = nullptr) {
    child_ = forkpty(&terminal_, nullptr, nullptr, nullptr);
    if (child_ != 0) return;
    setenv("TERM", "xterm", 1);
    setenv("LC_ALL", "C.UTF-8", 1);
    setenv("VESK_PUBLISHED_DIR", preferences.c_str(), 1);
    execl(kVesk.c_str(), "vesk", "--prefs", preferences.c_str(), option, nullptr);
    _exit(127);
  }
  Terminal(const Terminal&) = delete;
  Terminal& operator=(const Terminal&) = delete;
  ~Terminal() {
    kill(child_, SIGKILL);
    waitpid(child_, nullptr, 0);
    close(terminal_);
  }

  void type(const std::string& keys) {
    EXPECT_EQ(write(terminal_, keys.data(), keys.size()), static_cast<ssize_t>(keys.size()));
  }

  /// Reads until `text` is on the screen.
  void readUntil(const std::string& text) {
    std::string seen;
    while (seen.find(text) == seen.npos && readMore(seen)) {
    }
    EXPECT_THAT(seen, HasSubstr(text));
  }

  /// Waits until the program takes keys one by one. It prompts a moment before, and an end of input
  /// that is typed between the two would reach it as a key of another meaning.
  void awaitPrompt() {
    readUntil("vesk> ");
    for (int i = 0; i < 1000; ++i) {
      if (takesKeys()) return;
      usleep(10000);
    }
    ADD_FAILURE() << "the program prompts, and takes no keys";
  }

  /// Reads until the program ends; -1 when it does not.
  int exitStatus() {
    std::string seen;
    while (readMore(seen)) {
    }
    for (int i = 0; i < 100 && !hasEnded(); ++i) usleep(10000);
    return end_.si_code == CLD_EXITED ? end_.si_status : -1;
  }

 private:
  /// False at the end, or when nothing comes for long.
  bool readMore(std::string& seen) {
    constexpr int kPatience = 10000;  // milliseconds

    pollfd ready{terminal_, POLLIN, 0};
    if (poll(&ready, 1, kPatience) <= 0) return false;
    char bytes[4096];
    const ssize_t count = read(terminal_, bytes, sizeof bytes);
    if (count > 0) seen.append(bytes, static_cast<std::size_t>(count));
    return count > 0;
  }

  bool takesKeys() const {
    termios mode{};
    return tcgetattr(terminal_, &mode) == 0 && (mode.c_lflag & ICANON) == 0;
  }

  bool hasEnded() {
    waitid(P_PID, static_cast<id_t>(child_), &end_, WEXITED | WNOWAIT | WNOHANG);
    return end_.si_pid != 0;
  }

  int terminal_ = -1;
  pid_t child_ = -1;
  siginfo_t end_{};
};

class Prompt : public ::testing::Test {
 protected:
  std::string historyFile() const { return (folder_.path() / "history").string(); }

  TemporaryFolder folder_;
  Terminal terminal_{folder_.path().string()};
};

TEST_F(Prompt, RunsALineAndShowsItsResult) {
  terminal_.awaitPrompt();
  terminal_.type("about -version\r");
  terminal_.readUntil("\n2.1.0\r\n");
}

TEST_F(Prompt, GoesOnAfterAFailure) {
  terminal_.awaitPrompt();
  terminal_.type("nonsense\r");
  terminal_.readUntil("Error: unknown command \"nonsense\"");
  terminal_.type("about -version\r");
  terminal_.readUntil("\n2.1.0\r\n");
}

TEST_F(Prompt, TellsALineThatFailsWithoutAMessage) {
  terminal_.awaitPrompt();
  terminal_.type("orv -lpt nowhere\r");
  terminal_.readUntil("failed with status 1");
}

TEST_F(Prompt, CompletesACommandAndAFlag) {
  terminal_.awaitPrompt();
  terminal_.type("abo\t");
  terminal_.readUntil("ut ");
  terminal_.type("-ver\t");
  terminal_.readUntil("sion ");
  terminal_.type("\r");
  terminal_.readUntil("\n2.1.0\r\n");
}

TEST_F(Prompt, TakesTextBeyondAscii) {
  terminal_.awaitPrompt();
  terminal_.type("echo \"Größe 雪\"\r");
  terminal_.readUntil("\nGröße 雪\r\n");
}

TEST_F(Prompt, EndsWithTheInput) {
  terminal_.awaitPrompt();
  terminal_.type("\x04");
  EXPECT_EQ(terminal_.exitStatus(), 0);
}

TEST_F(Prompt, IsNoBatch) {
  terminal_.awaitPrompt();
  terminal_.type("about -batch\r");
  terminal_.readUntil("\nfalse\r\n");
}

TEST_F(Prompt, IsNotShownInBatch) {
  Terminal batch(folder_.path().string(), "--batch");
  batch.type("about -batch\n");
  batch.readUntil("\ntrue\r\n");
}

TEST_F(Prompt, EndsWithQuit) {
  terminal_.awaitPrompt();
  terminal_.type("quit -exitCode 5\r");
  EXPECT_EQ(terminal_.exitStatus(), 5);
}

TEST_F(Prompt, KeepsAHistory) {
  terminal_.awaitPrompt();
  terminal_.type("about -version\r");
  terminal_.readUntil("\n2.1.0\r\n");
  EXPECT_THAT(readWholeFile(historyFile()), HasSubstr("about"));

  Terminal next(folder_.path().string());
  next.awaitPrompt();
  next.type("\x10\r");  // the line before
  next.readUntil("\n2.1.0\r\n");
}

TEST(NoPrompt, IsShownWhenInputIsNoTerminal) {
  EXPECT_EQ(runVesk({}, {.input = "echo hi\n"}).out, "hi\n");
}

}  // namespace
}  // namespace vesk
