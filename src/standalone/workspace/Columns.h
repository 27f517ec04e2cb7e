#pragma once

#include <QObject>
#include <QPointer>
#include <map>
#include <vector>

class QMainWindow;

namespace vesk {

class Panel;
class PanelSet;

/// The columns of narrow panels beside the wide ones. They keep their width when the window gets
/// another one, and go with its scale; the wide panels have the rest.
class Columns final : public QObject {
 public:
  /// Both outlive this object.
  Columns(QMainWindow& window, const PanelSet& panels);

  /// Notes how wide everything is.
  void note();

  /// Makes the columns as wide as they were noted, times the factor.
  void restore(double factor = 1);

 protected:
  bool eventFilter(QObject* receiver, QEvent* event) override;

 private:
  struct Noted {
    QPointer<Panel> panel;
    int edge;  ///< the left one, which panels of one column share
    int width;
  };

  std::map<int, int> growths(double factor) const;

  QMainWindow& window_;
  const PanelSet& panels_;
  std::vector<Noted> noted_;
  int windowWidth_ = 0;
};

}  // namespace vesk
