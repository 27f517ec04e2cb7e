#pragma once

#include <QPointer>
#include <QWidget>

#include "platform/orvUI_1_0/HIGColor.h"
#include "platform/orvUI_1_0/OrvUiApi.h"
#include "standalone/widgets/parameters/RowEdits.h"

class QToolButton;

namespace orvuilib {

class ColourDialog;
class SourceLink;

/// One row: its name, what edits its value, and a button that gives it its default back. While its
/// ports are connected, what they are connected to stands in the place of the value.
class ORVUI_EXPORT RowWidget : public QWidget {
 public:
  /// What edits a row of that kind.
  static RowWidget* create(const ParameterRow& row, QWidget* parent);

  /// The height of a row. `open` is for a row that can be opened.
  static int heightOf(const ParameterRow& row, const QWidget& styled, int width, bool open);

  ~RowWidget() override;

  const ParameterRow& row() const { return edits_.row(); }

  /// Takes other ports, of the same kind.
  void setRow(const ParameterRow& row);

  /// Shows what the graph has now.
  void refresh();

  /// Whether a value is on its way.
  bool isLive() const { return edits_.isLive(); }

  virtual void setOpen(bool) {}

  /// An array is to be shown whole, or no longer.
  std::function<void(bool)> openAsked;

  /// An edit has been made, which the graph may have refused.
  std::function<void()> edited;

  /// Called with the reason why what a user did had no effect.
  std::function<void(const QString&)> refused;

 protected:
  RowWidget(const ParameterRow& row, QWidget* parent);
  const RowState& state() const { return edits_.state(); }

  /// What the fields are made on. It is hidden while the row is connected.
  QWidget* editor() const { return editor_; }

  virtual void showState(const RowState& state) = 0;
  virtual void placeFields(const QRect& place) = 0;

  /// Whether there is something to use also where nothing can be edited.
  virtual bool isForReaders() const { return false; }

  /// Whether the editor stands below the name, on the whole width.
  virtual bool isWide() const { return false; }

  // Edits that are told of.
  void change(const RowEdits::Change& change);
  void set(const QStringList& texts) { change(toValue(texts)); }
  void setComponent(int index, const QString& text) { change(toPart(index, {text})); }
  void show(const RowEdits::Change& change) { edits_.show(change); }
  void endLive();
  void cancelLive();
  void refuse(const QString& reason);

  /// Opens a picker, unless one is open. `shown` is what becomes of a port while the user mixes; at
  /// the end it is one step. The picker goes when the row can no longer be edited.
  void openPicker(const orvUI_v1::HIGColor& colour,
                  std::function<RowEdits::Change(const orvUI_v1::HIGColor&)> shown);

  void resizeEvent(QResizeEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  void layOut();
  void tell(bool done);
  QString describe() const;

  RowEdits edits_;
  QWidget* editor_;
  SourceLink* link_;
  QToolButton* reset_;
  QPointer<ColourDialog> picker_;
};

}  // namespace orvuilib
