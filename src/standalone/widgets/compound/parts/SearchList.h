#pragma once

#include <QAbstractListModel>
#include <QFrame>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <functional>
#include <optional>

#include "platform/orvUI_1_0/OrvUiApi.h"
#include "standalone/widgets/look/Theme.h"

namespace orvuilib {

/// One line of a SearchList: a text, and quieter at its right where it is from.
struct SearchLine {
  QString text;
  QString place;
  QString toolTip;
  QColor colour = {};  ///< of a mark before the text; invalid for none
};

/// A field to type in above a list that follows what is typed, as high as its lines. It lies over
/// its parent, chooses with Return or a click, and goes away with Escape or when the focus goes
/// elsewhere in the window.
class ORVUI_EXPORT SearchList : public QFrame {
  Q_OBJECT

 public:
  SearchList(const Theme& theme, const QString& prompt, QWidget* parent);
  ~SearchList() override;

  /// Where its corner goes, a point of the parent; nothing when what the list is for is gone.
  using Place = std::function<std::optional<QPoint>()>;

  /// Shows it empty at its place, or as near to that as it fits.
  void openAt(Place place);

  /// Takes its place anew, for the parent looks different now; without one it goes away.
  void follow();

  QLineEdit& field() { return *field_; }
  const QLineEdit& field() const { return *field_; }
  int lineCount() const { return static_cast<int>(lines_.size()); }
  const SearchLine& line(int index) const { return lines_[static_cast<std::size_t>(index)]; }

  /// Chooses as Return does.
  void choose(int index);

  /// The next line, round from the last to the first.
  virtual void chooseNext();

  /// Goes away as with Escape.
  void dismiss();

 signals:
  /// It went away and had the focus.
  void dismissed();

 protected:
  /// The lines for what is typed.
  virtual std::vector<SearchLine> search(const QString& typed) = 0;

  /// That line of the latest search was chosen.
  virtual void chosen(int index) = 0;

  /// Whether the list stays when a line is chosen.
  virtual bool staysOpen() const { return false; }

  /// Stands below the lines; empty is none.
  void setHint(const QString& text);

  /// What the field says while it is empty.
  void setPrompt(const QString& text) { field_->setPlaceholderText(text); }

  /// Searches anew for what is typed.
  void refresh();

  int currentLine() const { return list_->currentIndex().row(); }
  void setCurrentLine(int index);
  bool eventFilter(QObject* object, QEvent* event) override;

 private:
  class Model;
  class Delegate;

  bool keyPressed(int key);
  void step(int lines);
  void takePlace(const QPoint& corner);
  int chromeHeight() const;

  const Theme& theme_;
  Place place_;
  QLineEdit* field_;
  QListView* list_;
  QLabel* hint_;
  Model* model_;
  std::vector<SearchLine> lines_;
};

}  // namespace orvuilib
