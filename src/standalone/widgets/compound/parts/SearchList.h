#pragma once

#include <QAbstractListModel>
#include <QFrame>
#include <QLabel>
#include <QLineEdit>
#include <QListView>

#include "platform/orvUI_1_0/OrvUiApi.h"
#include "standalone/widgets/look/Theme.h"

namespace orvuilib {

/// One line of a SearchList: a text, and quieter at its right where it is from.
struct SearchLine {
  QString text;
  QString place;
  QString toolTip;
};

/// A field to type in above a list that follows what is typed. It lies over its parent, chooses
/// with Return or a click, and goes away with Escape or when it loses the focus.
class ORVUI_EXPORT SearchList : public QFrame {
  Q_OBJECT

 public:
  SearchList(const Theme& theme, const QString& prompt, QWidget* parent);
  ~SearchList() override;

  /// Shows it empty at that point of the parent, or as near as it fits.
  void openAt(const QPoint& point);

  QLineEdit& field() { return *field_; }
  int lineCount() const { return static_cast<int>(lines_.size()); }
  const SearchLine& line(int index) const { return lines_[static_cast<std::size_t>(index)]; }

  /// Chooses as Return does.
  void choose(int index);

  /// The next line, round from the last to the first.
  void chooseNext();

 signals:
  void dismissed();

 protected:
  /// The lines for what is typed.
  virtual std::vector<SearchLine> search(const QString& typed) = 0;

  /// That line of the latest search was chosen. `done` is whether the list goes.
  virtual void chosen(int index) = 0;

  /// Whether the list stays when a line is chosen.
  virtual bool staysOpen() const { return false; }

  void setHint(const QString& text);
  void refresh();
  bool eventFilter(QObject* object, QEvent* event) override;

 private:
  class Model;
  class Delegate;

  bool keyPressed(int key);
  void step(int lines);
  void dismiss();

  const Theme& theme_;
  QLineEdit* field_;
  QListView* list_;
  QLabel* hint_;
  Model* model_;
  std::vector<SearchLine> lines_;
};

}  // namespace orvuilib
