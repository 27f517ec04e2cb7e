#pragma once

#include <optional>
#include <variant>

#include "platform/ORV_1_0/PortProperties.h"
#include "platform/ORV_1_0/StringArray.h"
#include "standalone/graph/commands/PortPlan.h"
#include "standalone/graph/commands/RecordedCommand.h"

namespace orvlib {

/// The edits of ports that the commands for nodes and for compounds share. A port goes by its node
/// and its path below it. Each operation but the last two records a request; false, and nothing
/// recorded, for null, when there will be no such port or type, and when the port is not of a kind
/// that takes the edit. `redo` carries out what is recorded.
class PortEdits {
 public:
  /// A top-level port, or with a name like "values.x" a member of a fan-in port.
  bool make(NodeObject* node, PortDirection direction, const char* name, const char* type,
            const ORV_v1::PortProperties& properties);
  bool remove(NodeObject* node, const char* name);
  bool rename(NodeObject* node, const char* name, const char* newName);
  bool move(NodeObject* node, const char* name, unsigned int index);

  /// `ioNode` is the name of an input/output node inside the compound.
  bool show(NodeObject* node, const char* name, const char* ioNode);
  bool setType(NodeObject* node, const char* name, const char* type);
  bool setMetadata(NodeObject* node, const char* name, const char* key, const char* value);
  bool setFlags(NodeObject* node, const char* name, std::uint32_t bits, bool on);
  bool setFlags(PortObject* port, std::uint32_t bits, bool on);

  /// The value of an `interactive` request stays when the rest is undone. Without any text such a
  /// request gives the port its default back, unless it is an array, which may have no elements.
  bool setValues(NodeObject* node, const char* name, const ORV_v1::StringArray& values,
                 bool interactive);
  bool resetValues(NodeObject* node, const char* name);

  /// With nothing recorded, true.
  bool redo(const FaultPoint& fault);
  bool undo(const FaultPoint& fault);

 private:
  struct Make {
    NodeRef node;
    std::optional<PlannedPort> above;  ///< the fan-in port of a member
    PortDirection direction;
    std::string name;
    TypeRef type;
    std::uint32_t flags;
    Properties options;
    std::optional<Value> value;
  };
  struct Remove {};
  struct Rename {
    std::string name;
  };
  struct Move {
    unsigned int index;
  };
  struct Show {
    NodeRef ioNode;
  };
  struct Retype {
    TypeRef type;
  };
  struct NewMetadata {
    std::string key;
    std::string value;
  };
  struct NewFlags {
    std::uint32_t bits;
    bool on;
  };
  struct NewValue {
    Value value;
    bool interactive;
  };
  struct Reset {
    bool interactive;
  };
  using What = std::variant<NewValue, Reset, NewFlags, NewMetadata, Rename, Move, Show, Retype,
                            Remove, std::unique_ptr<Make>>;
  struct Request {
    PlannedPort port;
    What what;
  };

  bool accepts(NodeObject* node);
  bool find(NodeObject* node, const char* name, PortPlan::View& view);
  template <class One>
  bool record(PortPlan::View& view, One what) {
    requests_.push_back({std::move(view.target), std::move(what)});
    return true;
  }
  bool makeMember(NodeObject& node, std::string_view path, std::unique_ptr<Make> make,
                  const char* type);
  bool recordMake(NodeObject& node, const std::string& path, PortPlan::View view,
                  std::unique_ptr<Make> make);

  /// Requests on their way to be edits.
  struct Run;
  bool run(Transaction& edits) const;

  GraphLink graph_;
  PortPlan plan_;
  absl::InlinedVector<Request, 1> requests_;
  RecordedCommand command_;
  std::size_t makeCount_ = 0;
};

}  // namespace orvlib
