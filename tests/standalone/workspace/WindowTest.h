#pragma once

#include <gmock/gmock.h>

#include <QPointer>
#include <QTest>
#include <memory>
#include <string>
#include <vector>

#include "standalone/host/scene/Scene.h"
#include "standalone/workspace/MainWindow.h"
#include "standalone/workspace/workspaceCommands.h"
#include "tests/support/HostTest.h"
#include "tests/support/TemporaryFiles.h"

namespace windowtest {

using hosttest::Texts;

/// Lets all that waits for the event loop happen.
void settle();

/// A host with an open window. It notes the lines that no other command ran.
class Window {
 public:
  explicit Window(vesk::SessionOptions session = {}, vesk::WindowOptions options = {});
  ~Window();

  hosttest::Host& host() { return host_; }
  vesk::HostSession& session() { return host_.session(); }
  vesk::MainWindow& window() { return *window_; }
  vesk::PanelSet& panels() { return window_->panels(); }

  /// Runs a line that must work; gives its result as JSON.
  std::string run(std::string_view line);

  /// The lines since it was last asked.
  Texts takeLines() {
    settle();
    return std::exchange(lines_, {});
  }

  /// The names of the nodes, as `ls` gives them.
  std::string nodes() { return host_.run("ls"); }

  /// A widget of the window by its class.
  template <class Widget>
  Widget& the() {
    Widget* widget = nullptr;
    for (QWidget* one : window_->findChildren<QWidget*>()) {
      if (auto* found = dynamic_cast<Widget*>(one)) widget = found;
    }
    EXPECT_NE(widget, nullptr);
    return *widget;
  }

  void closeWindow() { window_.reset(); }

  /// Closes the window and opens another.
  void reopen(vesk::WindowOptions options = {});

 private:
  hosttest::Host host_;
  std::unique_ptr<vesk::MainWindow> window_;
  vesk::Observation observation_;
  Texts lines_;
};

/// Calls `act` with the dialog that is up next, from within its event loop.
void whenDialogIsUp(std::function<void(QWidget&)> act);

/// The path of a module of the build.
std::string moduleFile(const std::string& name);

}  // namespace windowtest
