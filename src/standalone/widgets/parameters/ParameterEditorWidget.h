#pragma once

#include <functional>

#include "platform/orvUI_1_0/ParameterEditor.h"
#include "standalone/widgets/parameters/GraphFollower.h"

namespace orvuilib {

class InfoPanel;
class Notice;
class ParameterPanel;

/// The one implementation of `ParameterEditor`: a panel for each mode, of which it makes those that
/// are asked for.
class ORVUI_EXPORT ParameterEditorWidget final : public orvUI_v1::ParameterEditor {
 public:
  explicit ParameterEditorWidget(QWidget* parent);
  ~ParameterEditorWidget() override;

  void setMode(orvUI_v1::ParameterEditorMode mode) override;

  /// Null while the mode is another.
  ParameterPanel* parameters() const { return parameters_; }
  InfoPanel* info() const { return info_; }

  QSize sizeHint() const override;

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void makePanel();
  void showSelection();
  void follow(unsigned char bits);
  bool giveUpLive();
  std::vector<orvlib::NodeRef> nodesInGraphs() const;

  orvUI_v1::ParameterEditorMode mode_ = orvUI_v1::ParameterEditorMode::kParameters;
  Notice* notice_;
  ParameterPanel* parameters_ = nullptr;
  InfoPanel* info_ = nullptr;

  /// What is shown of what is selected.
  std::vector<orvlib::NodeRef> nodes_;
  GraphFollower follower_;
};

}  // namespace orvuilib
