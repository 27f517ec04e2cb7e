#pragma once

#include <QWidget>

#include "platform/orvUI_1_0/OrvUiApi.h"

namespace orvUI_v1 {

enum class ParameterEditorMode : int {
  kParameters = 0,  ///< the values of the inputs
  kInfo = 1,        ///< what the nodes are: type, path, ports, metadata, watch points
};

/// Shows the properties of what was last selected in any compound editor, and edits them. It
/// follows the graph and the selection.
class ORVUI_EXPORT ParameterEditor : public QWidget {
 public:
  /// A new editor in the mode `kParameters`. It belongs to its Qt parent, or to the caller when
  /// that is null.
  /// Null in a program that has no `QApplication`.
  static ParameterEditor* create(QWidget* parent);

  virtual void setMode(ParameterEditorMode mode) = 0;

 protected:
  explicit ParameterEditor(QWidget* parent);
};

}  // namespace orvUI_v1
