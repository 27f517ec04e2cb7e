#include <fcntl.h>
#include <langinfo.h>
#include <unistd.h>

#include <clocale>
#include <string_view>

#include "standalone/vesk/Program.h"

namespace {

/// A standard stream that the caller closed must not come back as the first file that is opened.
void fillClosedStreams() {
  for (int stream = STDIN_FILENO; stream <= STDERR_FILENO; ++stream) {
    if (fcntl(stream, F_GETFD) == -1) open("/dev/null", O_RDWR);
  }
}

/// Text is in the user's encoding, and in UTF-8 where the locale knows plain ASCII only. Numbers
/// are written the same way everywhere.
void setLocale() {
  std::setlocale(LC_ALL, "");
  std::setlocale(LC_NUMERIC, "C");
  if (nl_langinfo(CODESET) == std::string_view("ANSI_X3.4-1968")) {
    std::setlocale(LC_CTYPE, "C.UTF-8");
  }
}

}  // namespace

int main(int argc, char** argv) {
  fillClosedStreams();
  setLocale();
  return vesk::runProgram(argc, argv);
}
