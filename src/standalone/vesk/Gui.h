#pragma once

#include <memory>
#include <string>

#include "standalone/host/engine/HostSession.h"
#include "standalone/vesk/ProgramOptions.h"
#include "standalone/vesk/QtScreenPicker.h"
#include "standalone/widgets/clipboard/QtClipboard.h"
#include "standalone/workspace/MainWindow.h"
#include "standalone/workspace/WorkspaceApplication.h"

namespace vesk {

/// The application behind a window, with the clipboard of the window system. It is made once, ahead
/// of the session, and goes after it.
class Gui {
 public:
  Gui();

  /// A shown window. When somebody sits in front of it, it comes with the saved workspace.
  std::unique_ptr<MainWindow> open(HostSession& session, const ProgramOptions& options);

  /// Lets what a line left for later happen, deletions too, but no key or click. Not from within a
  /// line.
  static void settle();

  /// The same, but not sooner than a tenth of a second after the last time: what thousands of lines
  /// change is shown a few times.
  static void settleSometimes();

  /// Handles events until the session quits, then saves the workspace.
  void run(HostSession& session, MainWindow& window);

 private:
  int argc_ = 1;
  std::string name_ = "vesk";
  char* argv_[2] = {name_.data(), nullptr};
  std::unique_ptr<WorkspaceApplication> application_;
  std::unique_ptr<orvuilib::QtClipboard> clipboard_;
  QtScreenPicker picker_;
};

}  // namespace vesk
