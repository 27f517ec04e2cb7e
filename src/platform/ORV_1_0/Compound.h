#pragma once

#include "platform/ORV_1_0/AddRefWrapper.h"
#include "platform/ORV_1_0/ChangeBracketClient.h"
#include "platform/ORV_1_0/Metadata.h"
#include "platform/ORV_1_0/Namable.h"
#include "platform/ORV_1_0/PortDataType.h"
#include "platform/ORV_1_0/ReferenceCounted.h"
#include "platform/ORV_1_0/String.h"

namespace ORV_v1 {

class AnnotationList;
class Node;
class NodeList;
class Port;
class PortList;

/// One level of a graph. Its `Namable` part is that of its node. Its metadata belongs to what the
/// compound is, and is published with it; that of its node belongs to the one instance.
class ORV_EXPORT Compound : public ReferenceCounted,
                            public Namable,
                            public Metadata,
                            public ChangeBracketClient {
 public:
  /// The node that this is the inside of; null once that node is gone.
  AddRefWrapper<Node> getAsNode();

  /// In the order in which they were added.
  virtual NodeList& getChildNodes() = 0;

  /// The inner faces of the compound's inputs and of its outputs.
  virtual PortList& compoundInputs() = 0;
  virtual PortList& compoundOutputs() = 0;

  /// False inside a referenced or locked compound.
  virtual bool isEditable() = 0;

  /// Whether this is an editable copy of a published compound, which differs from it.
  virtual bool canResetToFactory() = 0;

  /// Makes the content that of the published compound again. There is no undo. Nothing happens
  /// unless `canResetToFactory`.
  virtual void resetToFactory() = 0;

  /// Writes the compound to a file, which is replaced as a whole. False, with the reason in
  /// `error`, when that fails.
  virtual bool save(const char* file, String& error) = 0;

  /// Adds the compound to the node library `library` as the definition `name`. `description` is
  /// shown to users. `replace` lets it take the place of a published compound of that name. False,
  /// with the reason in `error`, and the library unchanged, when that fails.
  virtual bool publish(const char* name, const char* library, const char* description, bool replace,
                       String& error) = 0;

  /// As `publish`, of the whole graph that the compound is in: the top compound. `file` says where
  /// to write; empty means the folder of published compounds.
  virtual bool publishGraph(const char* name, const char* library, const char* description,
                            const char* file, String& error) = 0;

  /// The qualified name of the published compound that this one comes from; empty without one.
  virtual String getSpecializedTypeName() = 0;

  /// A referenced compound shows a published one: it follows it, is not editable, and its content
  /// is not stored with the graph.
  virtual bool isReferenced() = 0;

  /// True when the state is as asked for. A compound that comes from no published one cannot be
  /// referenced. What the compound held before it was referenced comes back when it no longer is.
  virtual bool setIsReferenced(bool referenced) = 0;

  /// Whether this is an editable copy of a published compound.
  virtual bool isImported() = 0;

  /// Adds an input and an output that keep a state: at each step of evaluation the input gives what
  /// the output had at the step before. False, and nothing changed, for a null type and when the
  /// compound is not editable.
  virtual bool addStatePorts(const char* inputName, const char* outputName,
                             const AddRefWrapper<PortDataType>& type) = 0;

  /// Removes a port of the compound, given by either face, with its connections. False, and nothing
  /// changed, for a port that is not the compound's.
  virtual bool removePort(const AddRefWrapper<Port>& port) = 0;

  virtual AnnotationList& getAnnotations() = 0;

 protected:
  Compound();
  ~Compound() override;
};

}  // namespace ORV_v1
