#pragma once

#include <QHBoxLayout>
#include <QMenu>
#include <QToolButton>
#include <QWidget>
#include <vector>

#include "platform/orvUI_1_0/OrvUiApi.h"
#include "standalone/widgets/compound/view/Navigator.h"
#include "standalone/widgets/look/Theme.h"

namespace orvuilib {

/// The bar above the canvas: back, forward, and the levels from the top to the one shown. Where
/// there is no room for all of them the foremost ones are in a menu.
class ORVUI_EXPORT Breadcrumb final : public QWidget {
  Q_OBJECT

 public:
  Breadcrumb(const Theme& theme, QWidget* parent);

  /// `graph` is how the top level is called.
  void display(const Navigator& navigator, const QString& graph);

  /// The names of the levels, as they stand there; without those in the menu.
  QStringList texts() const;

  QSize minimumSizeHint() const override;

 signals:
  void back();
  void forward();
  void levelChosen(orvlib::NodeObject* level);

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  struct Level {
    orvlib::NodeRef node;
    QString text;
    QToolButton* button = nullptr;  ///< null for one that is in the menu at every width
  };

  QToolButton* makeButton(const QString& text);
  void clear();
  void addButton(Level& level);
  void fit();
  void elideLast(int room);
  void fillMenu();
  int roomForLevels() const;

  const Theme& theme_;
  QToolButton* back_;
  QToolButton* forward_;
  QToolButton* more_;  ///< stands for the levels in the menu
  QMenu* menu_;
  QHBoxLayout* buttons_;
  std::vector<Level> levels_;
};

}  // namespace orvuilib
