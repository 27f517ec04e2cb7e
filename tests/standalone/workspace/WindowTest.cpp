#include "tests/standalone/workspace/WindowTest.h"

#include <QTimer>

#include "standalone/workspace/WorkspaceApplication.h"
#include "testPaths.h"

namespace windowtest {
namespace {

/// The one application of the program, gone ahead of what the program's end takes down.
class Application : public ::testing::Environment {
 public:
  void SetUp() override {
    application_ = std::make_unique<vesk::WorkspaceApplication>(argc_, argv_);
    application_->setQuitOnLastWindowClosed(false);
    // Where nobody sees the windows, Qt tells of each that it sets no limits to its size.
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString& text) {
      const bool usual =
          text.startsWith("This plugin does not support") || text.contains("XDG_RUNTIME_DIR");
      EXPECT_TRUE(usual) << text.toStdString();
    });
  }
  void TearDown() override { application_.reset(); }

 private:
  int argc_ = 1;
  char name_[15] = "workspace_test";
  char* argv_[2] = {name_, nullptr};
  std::unique_ptr<QApplication> application_;
};

const auto* const kApplication = ::testing::AddGlobalTestEnvironment(new Application);

}  // namespace

void settle() {
  for (int i = 0; i < 4; ++i) {
    QCoreApplication::sendPostedEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
  }
}

Window::Window(vesk::SessionOptions session, vesk::WindowOptions options)
    : host_(std::move(session)) {
  vesk::registerWorkspaceCommands(host_.session().registry());
  observation_ = host_.session().engine().lineEnded().add(
      [this](const vesk::FinishedLine& line) { lines_.emplace_back(line.text); });
  reopen(std::move(options));
}

Window::~Window() { window_.reset(); }

void Window::reopen(vesk::WindowOptions options) {
  window_.reset();
  window_ = std::make_unique<vesk::MainWindow>(host_.session(), std::move(options));
  window_->show();
  settle();
}

std::string Window::run(std::string_view line) {
  std::string result = host_.run(line);
  settle();
  return result;
}

void whenDialogIsUp(std::function<void(QWidget&)> act) {
  QTimer::singleShot(0, qApp, [act = std::move(act)] {
    QWidget* dialog = QApplication::activeModalWidget();
    if (!dialog) return whenDialogIsUp(act);
    act(*dialog);
  });
}

std::string moduleFile(const std::string& name) {
  return VESK_BUILD_DIR "/test-modules/" + name + ".so";
}

}  // namespace windowtest
