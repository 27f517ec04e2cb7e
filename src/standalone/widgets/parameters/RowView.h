#pragma once

#include <QAbstractScrollArea>
#include <QHash>
#include <QSet>
#include <functional>

#include "platform/orvUI_1_0/OrvUiApi.h"
#include "standalone/widgets/parameters/RowFilter.h"

namespace orvuilib {

class GroupHeader;
class RowWidget;

/// Rows under their headings, one below the other. There are widgets only for those that can be
/// seen, so that it does not matter how many there are.
class ORVUI_EXPORT RowView final : public QAbstractScrollArea {
 public:
  explicit RowView(QWidget* parent);

  /// Replaces the rows. What is the same as before keeps its widgets, and with them the focus; the
  /// view keeps its place.
  void setGroups(std::vector<RowGroup> groups);

  /// Only rows that pass (see `RowFilter`) are shown, and only groups with such rows. Groups are
  /// all open then.
  void setFilter(const QString& text);

  /// Shows what the graph has now.
  void refresh();

  /// Whether there is a row to show.
  bool isEmpty() const { return lines_.empty(); }

  /// The widget of the row of that port name, brought into view; null when there is none.
  RowWidget* rowOf(const QString& label);

  /// Whether a value is on its way.
  bool isLive() const;

  /// How many rows have widgets now.
  std::size_t widgetCount() const { return static_cast<std::size_t>(widgets_.size()); }

  /// An edit has been made, which the graph may have refused.
  std::function<void()> edited;

  /// Called with the reason why what a user did had no effect.
  std::function<void(const QString&)> refused;

 protected:
  bool focusNextPrevChild(bool next) override;
  void focusInEvent(QFocusEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void scrollContentsBy(int dx, int dy) override;
  bool event(QEvent* event) override;

 private:
  /// A heading, or a row.
  struct Line {
    const RowGroup* group;
    const ParameterRow* row;  ///< null for a heading
    int top;
    int height;
    const QString& key() const { return row ? row->key : group->key; }
  };

  void makeLines();
  void measure();
  void addGroup(const RowGroup& group);
  int totalHeight() const;

  /// Makes the widgets of what can be seen, and drops those of what cannot.
  void place();
  std::size_t firstVisible() const;
  QWidget* widgetOf(const Line& line);
  QWidget* makeRow(const Line& line);
  QWidget* makeHeader(const Line& line);
  void dropUnseen(const QSet<QString>& seen);
  bool isKnown(const QString& key) const;
  bool mustStay(const QWidget& widget) const;
  static bool hasOpenWindow(const QWidget& row);
  void setOpen(const QString& row, bool open);
  void setGroupOpen(const QString& group, bool open);

  /// The line of what has the focus; the number of lines when it is none of them.
  std::size_t focusedLine() const;
  bool focusIn(std::size_t line, bool first);
  bool focusFrom(std::size_t line, bool next);
  bool focusAround(bool next);
  void showLine(const Line& line);

  std::vector<RowGroup> groups_;
  std::vector<Line> lines_;
  QHash<QString, QWidget*> widgets_;
  QSet<QString> openRows_;
  RowFilter filter_;
  bool placing_ = false;
};

}  // namespace orvuilib
