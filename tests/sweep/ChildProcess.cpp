#include "tests/sweep/ChildProcess.h"

#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>
#include <cstring>
#include <iostream>

namespace {

std::string readAll(int pipe) {
  std::string text;
  char bytes[1 << 14];
  for (ssize_t count; (count = ::read(pipe, bytes, sizeof bytes)) > 0;) {
    text.append(bytes, static_cast<std::size_t>(count));
  }
  ::close(pipe);
  return text;
}

[[noreturn]] void workAndEnd(const std::function<std::string()>& work, int pipe) {
  const std::string text = work();
  if (::write(pipe, text.data(), text.size()) < 0) std::abort();
  ::close(pipe);
  // As a program ends: what it leaked is found.
  std::exit(0);
}

std::string describe(int status) {
  if (WIFSIGNALED(status)) return std::string("it crashed: ") + strsignal(WTERMSIG(status));
  const int code = WEXITSTATUS(status);
  return code == 0 ? "" : "it ended with status " + std::to_string(code);
}

}  // namespace

ChildResult inChild(const std::function<std::string()>& work) {
  // What is not yet printed would be printed by both.
  std::cout.flush();
  int pipes[2];
  if (pipe(pipes) != 0) std::abort();
  const pid_t child = fork();
  if (child == 0) {
    ::close(pipes[0]);
    workAndEnd(work, pipes[1]);
  }
  ::close(pipes[1]);
  ChildResult result{readAll(pipes[0]), ""};
  int status = 0;
  waitpid(child, &status, 0);
  result.ended = describe(status);
  return result;
}
