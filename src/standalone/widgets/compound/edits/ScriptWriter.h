#pragma once

#include <string>
#include <unordered_set>
#include <vector>

#include "standalone/graph/model/CompoundObject.h"

namespace orvuilib {

/// A text in quotes, as the command language reads it.
std::string quoted(const std::string& text);

/// Writes lines of the command language that build parts of a graph in an empty level: nodes and
/// notes with all that is in them and set on them, and the connections among them. Input and output
/// nodes of the first level are left out: the ports that they show are not part of the copy.
class ScriptWriter {
 public:
  using Nodes = std::vector<orvlib::NodeObject*>;
  using Notes = std::vector<orvlib::AnnotationObject*>;

  /// `container` is the name of the graph that the lines are for.
  explicit ScriptWriter(const std::string& container) : container_(quoted(container)) {}

  /// What is chosen of a level, into the empty compound of that path.
  void write(const std::string& path, const Nodes& nodes, const Notes& notes);

  /// The command for a path, and what it is to do.
  void line(const char* command, const std::string& path, const std::string& rest);

  std::string take() { return std::move(text_); }

 private:
  // ScriptWriter.cpp
  void writeLevel(const std::string& path, orvlib::CompoundObject& compound);
  void writeNodes(const std::string& path, const Nodes& nodes);
  void writeNode(const std::string& path, orvlib::NodeObject& node);
  void writeContent(const std::string& path, orvlib::CompoundObject& compound);
  void writeShown(const std::string& path, const orvlib::NodeObject& node);
  void writeStates(const std::string& path, const orvlib::NodeObject& node);
  void writeMetadata(const char* command, const std::string& path,
                     const orvlib::Properties& metadata);
  void writeNotes(const std::string& path, const Notes& notes);
  void writeNoteMetadata(const std::string& path, const orvlib::AnnotationObject& note);
  void writeWiresFrom(const std::string& path, const orvlib::PortObject& source);
  bool isChosen(const orvlib::PortObject& port) const;

  // ScriptPorts.cpp
  void writeOwnPorts(const std::string& path, orvlib::NodeObject& node);
  void writeOwnPort(const std::string& path, const orvlib::PortObject& port);
  void writeStatePair(const std::string& path, const orvlib::PortObject& input);
  void writeOutputOrder(const std::string& path, const orvlib::NodeObject& node);
  void writePortSettings(const std::string& path, const orvlib::NodeObject& node);
  void writePort(const std::string& path, const orvlib::PortObject& port);
  void writeFlags(const std::string& path, const orvlib::PortObject& port);
  void writeMembers(const std::string& path, const orvlib::PortObject& port);
  void writeValue(const std::string& path, const orvlib::PortObject& port);
  void writePortMetadata(const std::string& path, const orvlib::PortObject& port);
  void writeWatchPoint(const std::string& path, const orvlib::PortObject& port);

  std::string container_;
  std::string text_;

  /// Of the first level; further down all are.
  std::unordered_set<const orvlib::NodeObject*> chosen_;
  const orvlib::CompoundObject* chosenFrom_ = nullptr;
};

}  // namespace orvuilib
