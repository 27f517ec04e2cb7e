#pragma once

#include <QWidget>

#include "platform/ORV_1_0/AddRefWrapper.h"
#include "platform/ORV_1_0/AnnotationList.h"
#include "platform/ORV_1_0/Compound.h"
#include "platform/ORV_1_0/NodeList.h"
#include "platform/orvUI_1_0/OrvUiApi.h"

namespace orvUI_v1 {

/// Shows one level of a graph at a time, to look at and to edit. It follows the graph; when what it
/// shows goes it goes up, and is blank once the graph is gone.
class ORVUI_EXPORT CompoundEditor : public QWidget {
 public:
  /// A new editor that shows nothing. It belongs to its Qt parent, or to the caller when that is
  /// null. Null in a program that has no `QApplication`.
  static CompoundEditor* create(QWidget* parent);

  /// The runtime whose nodes are offered first; an unknown or null name changes nothing.
  virtual void setRuntimeNameHint(const char* name) = 0;

  /// Null when the editor shows nothing.
  virtual ORV_v1::AddRefWrapper<ORV_v1::Compound> currentCompound() const = 0;

  /// Shows the graph whose top node this is. Null makes the editor blank.
  virtual void editCompound(const ORV_v1::AddRefWrapper<ORV_v1::Node>& topNode) = 0;

  /// False, and nothing changed, for null and for a compound that is not of the graph shown.
  virtual bool diveInCompound(const ORV_v1::AddRefWrapper<ORV_v1::Compound>& compound) = 0;

  /// As if the key were pressed and released in the editor; `key` is a `Qt::Key`.
  virtual void sendKeyEvent(int key, QFlags<Qt::KeyboardModifier> modifiers) = 0;

  /// Replaces the list by a new one of what is selected, in the order in which it was selected.
  /// False, and the list untouched, when the editor shows nothing.
  virtual bool getSelectedNodes(ORV_v1::AddRefWrapper<ORV_v1::NodeList>& nodes) const = 0;
  virtual bool getSelectedAnnotations(
      ORV_v1::AddRefWrapper<ORV_v1::AnnotationList>& annotations) const = 0;

  /// Replaces the selection, annotations included. Nodes that are not at the level shown are passed
  /// over.
  virtual void setSelectedNodes(const ORV_v1::AddRefWrapper<ORV_v1::NodeList>& nodes) = 0;

 protected:
  explicit CompoundEditor(QWidget* parent);
};

}  // namespace orvUI_v1
