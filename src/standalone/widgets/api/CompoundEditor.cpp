#include "platform/orvUI_1_0/CompoundEditor.h"

#include <QApplication>

#include "standalone/widgets/compound/CompoundEditorWidget.h"

namespace orvUI_v1 {

CompoundEditor::CompoundEditor(QWidget* parent) : QWidget(parent) {}

CompoundEditor* CompoundEditor::create(QWidget* parent) {
  const bool canHaveWidgets = qobject_cast<QApplication*>(QCoreApplication::instance());
  return canHaveWidgets ? new orvuilib::CompoundEditorWidget(parent) : nullptr;
}

}  // namespace orvUI_v1
