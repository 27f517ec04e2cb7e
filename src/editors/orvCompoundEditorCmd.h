#pragma once

#include "editors/editorRegistry.h"
#include "platform/ORV_1_0/Node.h"
#include "platform/OpenVesk/KArgParser.h"
#include "platform/OpenVesk/KPxCommand.h"
#include "plugin/orvBaseCmd.h"

/// `orvCompoundEditor [-name PANEL] FLAGS...`: opens panels with compound editors, steers the
/// editor of a panel, and asks it.
class orvCompoundEditorCmd final : public KPxCommand, private orvBaseCmd {
 public:
  static KPxCommand* creator();
  static KSyntax createSyntax();

  KStatus doIt(const KArgList& args) override;
  bool hasSyntax() const override;

 private:
  using Node = ORV_v1::Node;
  using Compound = ORV_v1::Compound;

  /// What a line asks for, as far as it is read ahead.
  struct Request {
    const KArgParser& line;
    KString name = {};
    KString title = "Compound Editor";
    KString runtimeHint = {};

    /// The top node of the graph to show; null when the line names none.
    ORV_v1::AddRefWrapper<Node> topNode = {};

    bool has(const char* flag) const { return line.isFlagSet(flag); }
    bool hasAny(std::initializer_list<const char*> flags) const;
    bool selects() const { return hasAny({"-sn", "-ns"}); }

    /// Steering an editor leaves its panel alone.
    bool opensPanel() const { return !hasAny({"-cc", "-sk", "-sn", "-ns"}); }
  };

  static KStatus readNames(Request& request);
  static KStatus checkQuery(Request& request);
  static KStatus checkEdit(Request& request);
  KStatus findGraph(Request& request);
  static KStatus diveIn(const Request& request, const EditorEntry& entry);
  static KStatus sendKey(const Request& request, const EditorEntry& entry);
  static KStatus select(const Request& request, const EditorEntry& entry);
  static void openPanel(const Request& request, EditorEntry& entry);

  static KStatus answer(const Request& request, const EditorEntry& entry);
  static KStatus listEditors();
};
