#pragma once

#include "platform/OpenVesk/KPxCommand.h"
#include "plugin/orvBaseCmd.h"

/// `orvParameterEditor [-info]`: shows the panel of parameters, or that of information.
class orvParameterEditorCmd final : public KPxCommand, private orvBaseCmd {
 public:
  static KPxCommand* creator();
  static KSyntax createSyntax();

  /// Always `StatusSuccess`.
  KStatus doIt(const KArgList& args) override;
  bool hasSyntax() const override;
};
