#include "platform/orvUI_1_0/ParameterEditor.h"

#include <QApplication>

#include "standalone/widgets/parameters/ParameterEditorWidget.h"

namespace orvUI_v1 {

ParameterEditor::ParameterEditor(QWidget* parent) : QWidget(parent) {}

ParameterEditor* ParameterEditor::create(QWidget* parent) {
  const bool canHaveWidgets = qobject_cast<QApplication*>(QCoreApplication::instance());
  return canHaveWidgets ? new orvuilib::ParameterEditorWidget(parent) : nullptr;
}

}  // namespace orvUI_v1
