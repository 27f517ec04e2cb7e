#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "platform/OpenVesk/KArgDatabase.h"
#include "platform/OpenVesk/KFnDependencyNode.h"
#include "platform/OpenVesk/KGlobal.h"
#include "platform/OpenVesk/KStringResource.h"
#include "standalone/host/engine/Arguments.h"
#include "standalone/host/engine/CommandRegistry.h"
#include "standalone/host/engine/HostObject.h"
#include "standalone/host/engine/ParsedArguments.h"
#include "standalone/host/engine/ResultValue.h"
#include "standalone/host/engine/StringRep.h"
#include "standalone/host/engine/SyntaxData.h"

VESK_API_OPEN

/// The host's way into the representations that its interface hides.
struct VESK_EXPORT HostAccess {
  /// Writes to a status that the caller may have left out.
  static void report(KStatus* status, KStatus value) {
    if (status) *status = value;
  }

  /// A string that takes over valid UTF-8.
  static KString string(std::string utf8);
  static std::string_view text(const KString& string) { return {string.asUTF8(), string.length()}; }

  static KStringArray stringArray(const std::vector<std::string>& utf8);
  static std::vector<std::string> texts(const KStringArray& array);

  static const vesk::SyntaxData& data(const KSyntax& syntax) { return *syntax.rep_; }
  /// For changing a syntax that no other copy shares.
  static vesk::SyntaxData& data(KSyntax& syntax);

  static KArgList argList(std::shared_ptr<const vesk::ArgumentArray> arguments);
  static KArgList argList(std::shared_ptr<const vesk::ArgumentArray> arguments, unsigned int first,
                          unsigned int count);
  static std::shared_ptr<const vesk::ArgumentArray> argumentsOf(const KArgList& list);
  static const vesk::ParsedArguments& parsed(const KArgParser& parser) {
    return parser.rep_->parsed;
  }

  static void bind(KPxCommand& command, std::shared_ptr<const vesk::CommandEntry> entry);
  /// Null for an object that the engine did not create.
  static const vesk::CommandEntry* entryOf(const KPxCommand& command);

  static vesk::ResultValue& value(KCommandResult& result);

  static KObject object(std::shared_ptr<vesk::HostObject> object);
  /// Null for a null handle.
  static std::shared_ptr<vesk::HostObject> objectOf(const KObject& object);
  static void append(KSelectionList& list, KObject object);

  static KUuid uuid(std::string text);

  static std::string_view pluginId(const KStringResourceId& id) { return text(id.pluginId_); }
  static std::string_view key(const KStringResourceId& id) { return text(id.key_); }
  static const KString& defaultText(const KStringResourceId& id) { return id.defaultText_; }
};

VESK_API_CLOSE
