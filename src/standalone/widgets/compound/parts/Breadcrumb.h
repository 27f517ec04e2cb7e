#pragma once

#include <QHBoxLayout>
#include <QToolButton>
#include <QWidget>

#include "platform/orvUI_1_0/OrvUiApi.h"
#include "standalone/widgets/compound/view/Navigator.h"
#include "standalone/widgets/look/Theme.h"

namespace orvuilib {

/// The bar above the canvas: back, forward, and the levels from the top to the one shown.
class ORVUI_EXPORT Breadcrumb final : public QWidget {
  Q_OBJECT

 public:
  Breadcrumb(const Theme& theme, QWidget* parent);

  /// `graph` is how the top level is called.
  void display(const Navigator& navigator, const QString& graph);

  /// The names of the levels, as they stand there.
  QStringList texts() const;

 signals:
  void back();
  void forward();
  void levelChosen(orvlib::NodeObject* level);

 private:
  QToolButton* makeButton(const QString& text);

  const Theme& theme_;
  QToolButton* back_;
  QToolButton* forward_;
  QHBoxLayout* levels_;
};

}  // namespace orvuilib
