#pragma once

#include "platform/ORV_1_0/Flaggable.h"
#include "platform/ORV_1_0/Host.h"
#include "platform/OpenVesk/KArgDatabase.h"
#include "platform/OpenVesk/KPxCommand.h"

/// The command `orv`: asks the graph library for its runtimes, libraries, nodes and port types, and
/// lets a runtime rebuild its compounds.
class orvActionCmd : public KPxCommand {
 public:
  enum orvActionFlags {
    kActionRunTimes = 1,
    kActionUseNiceName = 2,
    kActionLibraries = 4,
    kActionFlushProxies = 8,
    kActionListPortTypes = 16,
    kActionNodes = 32,
  };

  static KPxCommand* creator();
  static KSyntax createSyntax();

  KStatus doIt(const KArgList& args) override;

 private:
  KStatus parseArgs(const KArgList& args);
  void parseNodes(const KArgDatabase& db, KStatus& status);

  void listRuntimes(const ORV_v1::Host& host) const;
  void listLibraries(const ORV_v1::Host& host) const;
  void flushProxies(const ORV_v1::Host& host) const;
  KStatus listPortTypes(const ORV_v1::Host& host) const;
  KStatus listNodes(const ORV_v1::Host& host) const;

  void appendSubLibraries(const ORV_v1::NodeLibrary& library, KStringArray& names) const;
  ORV_v1::AddRefWrapper<ORV_v1::NodeLibrary> rootLibrary(const ORV_v1::Host& host) const;
  ORV_v1::Runtime* runtime(const ORV_v1::Host& host) const;
  template <class Object>
  KString shownName(const Object& object) const;

  KString runtimeName;
  KString libraryName;
  ORV_v1::Flaggable<orvActionFlags> actionFlags;
};
