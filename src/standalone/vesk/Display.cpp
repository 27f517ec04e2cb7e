#include "standalone/vesk/Display.h"

#include <sys/wait.h>
#include <unistd.h>

#include <QGuiApplication>
#include <cerrno>
#include <cstdlib>

namespace vesk {
namespace {

bool isSet(const char* variable) {
  const char* value = std::getenv(variable);
  return value && *value;
}

/// What it says is of no interest: the program says that there is no window.
void leaveWhenFatal(QtMsgType type, const QMessageLogContext&, const QString&) {
  if (type == QtFatalMsg) _exit(EXIT_FAILURE);
}

[[noreturn]] void makeApplication() {
  qInstallMessageHandler(leaveWhenFatal);
  int argc = 1;
  char name[] = "vesk";
  char* argv[] = {name, nullptr};
  const QGuiApplication application(argc, argv);
  _exit(EXIT_SUCCESS);
}

bool exitsWell(pid_t child) {
  int status = 0;
  while (waitpid(child, &status, 0) < 0) {
    if (errno != EINTR) return false;
  }
  return WIFEXITED(status) && WEXITSTATUS(status) == EXIT_SUCCESS;
}

/// Qt ends the program when it cannot reach a display, and so it is tried in another one. Without a
/// second process nothing is known, and the display counts as there.
bool canBeReached() {
  const pid_t child = fork();
  if (child == 0) makeApplication();
  return child < 0 || exitsWell(child);
}

}  // namespace

Display findDisplay() {
  const bool named = isSet("DISPLAY") || isSet("WAYLAND_DISPLAY") || isSet("QT_QPA_PLATFORM");
  if (!named) return Display::None;
  return canBeReached() ? Display::There : Display::Unreachable;
}

}  // namespace vesk
