#include "standalone/workspace/Workspace.h"

#include <QCoreApplication>
#include <QThread>
#include <algorithm>
#include <array>

#include "standalone/host/engine/HostSession.h"
#include "standalone/host/engine/OptionVariables.h"

namespace vesk {
namespace {

constexpr std::array kScales{100, 125, 150, 175, 200};
Workspace* currentWorkspace = nullptr;

}  // namespace

Workspace::Workspace() { currentWorkspace = this; }

Workspace::~Workspace() {
  if (currentWorkspace == this) currentWorkspace = nullptr;
}

Workspace* Workspace::current() { return currentWorkspace; }

bool isInterfaceScale(int percent) {
  return std::find(kScales.begin(), kScales.end(), percent) != kScales.end();
}

int interfaceScale() {
  const Workspace* workspace = Workspace::current();
  const int ofThisRun = workspace ? workspace->scaleForThisRun : 0;
  return ofThisRun != 0 ? ofThisRun : chosenInterfaceScale();
}

int chosenInterfaceScale() {
  HostSession* session = HostSession::current();
  const auto* value = session ? session->optionVariables().find("interfaceScale") : nullptr;
  const int* scale = value ? std::get_if<int>(value) : nullptr;
  return scale && isInterfaceScale(*scale) ? *scale : 100;
}

void leaveWhenAskedToQuit(const HostSession& session) {
  if (!session.quitRequested || QThread::currentThread()->loopLevel() == 0) return;
  QMetaObject::invokeMethod(
      qApp, [] { QCoreApplication::exit(); }, Qt::QueuedConnection);
}

KStatus runLine(std::string_view line) {
  HostSession* session = HostSession::current();
  ResultValue result;
  return session ? session->runLine(line, result) : KStatus(StatusFailure);
}

}  // namespace vesk
