#include "standalone/vesk/Gui.h"

#include <QElapsedTimer>
#include <clocale>
#include <iostream>

#include "standalone/colour/ColourService.h"
#include "standalone/host/language/Tokenizer.h"

namespace vesk {
namespace {

/// Where nobody sees the windows, Qt tells of each that it sets no limits to its size.
void passOn(QtMsgType type, const QMessageLogContext& context, const QString& text) {
  if (!text.startsWith("This plugin does not support") && !text.contains("XDG_RUNTIME_DIR")) {
    std::cerr << qFormatLogMessage(type, context, text).toStdString() << std::endl;
  }
}

/// What the window offers for the graphs that this program adds to the host.
WindowOptions windowOptions(const ProgramOptions& options) {
  WindowOptions window;
  window.scaleForThisRun = options.scale.empty() ? 0 : std::stoi(options.scale);
  window.offers = {{"Compound Editor", "orvCompoundEditor", "orvCompoundEditor"},
                   {"Parameters", "orvParameterEditor", "orvParameterEditor"},
                   {"Info", "orvParameterEditor", "orvParameterEditor -info"}};
  window.openers = {{"orvGraph", "orvCompoundEditor -edit"}};
  return window;
}

}  // namespace

/// Qt sets the locale anew when its application is made; what the program has chosen stays.
Gui::Gui() {
  const std::string locale = std::setlocale(LC_ALL, nullptr);
  qInstallMessageHandler(passOn);
  application_ = std::make_unique<WorkspaceApplication>(argc_, argv_);
  application_->setApplicationName("vesk");
  application_->setQuitOnLastWindowClosed(false);
  clipboard_ = std::make_unique<orvuilib::QtClipboard>();
  std::setlocale(LC_ALL, locale.c_str());
}

std::unique_ptr<MainWindow> Gui::open(HostSession& session, const ProgramOptions& options) {
  auto window = std::make_unique<MainWindow>(session, windowOptions(options));
  if (auto* colours = colour::ColourService::current()) colours->setScreenPicker(&picker_);
  if (!session.options().batch && !window->workspacePath().empty()) {
    window->restoreWorkspace(window->workspacePath());
  }
  window->show();
  settle();
  return window;
}

void Gui::settle() {
  QCoreApplication::sendPostedEvents();
  QApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
  // Qt leaves these for its event loop, which does not run yet.
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

void Gui::settleSometimes() {
  constexpr qint64 kInterval = 100;  // milliseconds

  static QElapsedTimer sinceLast;
  if (sinceLast.isValid() && sinceLast.elapsed() < kInterval) return;
  settle();
  sinceLast.start();
}

void Gui::run(HostSession& session, MainWindow& window) {
  if (session.quitRequested) return;
  application_->exec();
  const std::string path = window.workspacePath();
  const std::string problem = path.empty() ? "" : window.saveWorkspace(path);
  if (problem.empty()) return;
  session.messages().error("the workspace " + vesk::quoted(path) + " cannot be saved: " + problem);
}

}  // namespace vesk
