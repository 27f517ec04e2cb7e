#pragma once

#include <QApplication>
#include <QDockWidget>
#include <QPointer>
#include <QWindow>
#include <vector>

namespace vesk {

/// The application of a program with a window. It knows which panels are handling an event, so that
/// a panel that closes itself is deleted as soon as it does not, and no sooner.
class WorkspaceApplication : public QApplication {
 public:
  WorkspaceApplication(int& argc, char** argv) : QApplication(argc, argv) {}

  bool notify(QObject* receiver, QEvent* event) override;

  /// Whether an event of the panel, or of something in it, is being handled. Where the application
  /// is another one nobody knows, and the answer is yes.
  static bool isHandlingEvents(const QDockWidget& panel);

  /// Deletes the panel: at once, or when it has handled its events.
  static void deleteWhenSafe(QDockWidget* panel);

  /// Takes back that the panel is deleted when it has handled its events.
  static void keep(const QDockWidget& panel);

 private:
  /// One call of `notify`. A window stands for the panel whose frame it is.
  struct Delivery {
    QPointer<QDockWidget> panel;
    QPointer<QWindow> window;
  };

  bool isDeliveringTo(const QDockWidget& panel) const;
  void deleteThoseThatAreSafe();

  std::vector<Delivery> deliveries_;
  std::vector<QPointer<QDockWidget>> waiting_;
};

}  // namespace vesk
