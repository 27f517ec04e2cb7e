#pragma once

#include <cstdint>

#include "platform/ORV_1_0/Flaggable.h"
#include "platform/ORV_1_0/WatchPoint.h"
#include "platform/ORV_1_0/WatchPointCommand.h"
#include "platform/OpenVesk/KPxCommand.h"
#include "plugin/flagReading.h"
#include "plugin/orvMetadataCmd.h"

/// The command `orvWatchPoint`: creates, removes, sets up and asks the watch point of one port.
class orvWatchPointCmd : public orvMetadataCmd, public KPxCommand {
 public:
  enum EditActionFlags : std::uint32_t {
    kEditCreate = 1,
    kEditRemove = 2,
    kEditSetUp = 4,
  };

  enum QueryActionFlags : std::uint32_t {
    kQueryHasWatchPoint = 1,
    kQueryIsEnabled = 2,
    kQueryParameters = 4,
    kQueryParameterDescription = 8,
    kQueryParameterValues = 16,
    kQueryParameterValueDescription = 32,
    kQueryParameterValue = 64,
    kQueryRecordedValues = 128,
  };

  static KPxCommand* creator();
  static KSyntax createSyntax();

  KStatus doIt(const KArgList& args) override;
  KStatus undoIt() override;
  KStatus redoIt() override;
  bool isUndoable() const override;

 protected:
  ORV_v1::Flaggable<QueryActionFlags> queryFlags;
  ORV_v1::Flaggable<EditActionFlags> editFlags;
  KString nodePath;
  KString portName;
  KString parameterName;
  KString parameterValue;
  ORV_v1::WatchPointCommand watchPointCommand;

 private:
  using PortHandle = ORV_v1::AddRefWrapper<ORV_v1::Port>;

  /// What the steps of a parse share.
  struct Parse : FlagReading {
    const PortHandle& port;
  };

  /// How one flag that edits is read.
  struct EditStep {
    const char* flag;
    void (orvWatchPointCmd::*record)(const Parse& parse);
    EditActionFlags sets;
  };

  /// How one query is read and answered.
  struct QueryStep {
    const char* flag;
    void (orvWatchPointCmd::*read)(const Parse& parse);  ///< null for one without arguments
    QueryActionFlags sets;
    /// Sets the result; false when the watch point has no answer.
    bool (orvWatchPointCmd::*answer)(ORV_v1::WatchPoint& watchPoint) const;
  };

  // Each in the order in which it is walked, which is part of the behaviour.
  static const EditStep kEditSteps[];
  static const QueryStep kQuerySteps[];

  /// The port that the line names. Null, and the user is told what is not there.
  PortHandle findPort() const;
  static PortHandle findPortOf(ORV_v1::Node& node, const KString& name);

  KStatus parseArgs(const KArgList& args);
  void parseFlags(const KArgDatabase& db, const PortHandle& port);
  void recordCreate(const Parse& parse);
  void recordRemove(const Parse& parse);
  void recordEnable(const Parse& parse);
  void recordParameter(const Parse& parse);
  void readName(const Parse& parse);
  void readNameAndValue(const Parse& parse);

  /// False, without a message, in a compound that is not editable and for a port in none.
  bool mayEdit() const;
  KStatus answer() const;
  bool answerIsEnabled(ORV_v1::WatchPoint& watchPoint) const;
  bool answerParameters(ORV_v1::WatchPoint& watchPoint) const;
  bool answerParameterDescription(ORV_v1::WatchPoint& watchPoint) const;
  bool answerParameterValues(ORV_v1::WatchPoint& watchPoint) const;
  bool answerParameterValueDescription(ORV_v1::WatchPoint& watchPoint) const;
  bool answerParameterValue(ORV_v1::WatchPoint& watchPoint) const;
  bool answerRecordedValues(ORV_v1::WatchPoint& watchPoint) const;
};
