#pragma once

#include "fuzz/Bytes.h"
#include "fuzz/SessionWorld.h"
#include "fuzz/WordKinds.h"
#include "standalone/host/engine/SyntaxData.h"

namespace fuzz {

/// Makes lines of the registered commands: flags from their syntaxes, and words that mostly name
/// what there is. Files are only ever named in the world's folder.
class SessionLines {
 public:
  SessionLines(SessionWorld& world, Bytes bytes) : world_(world), bytes_(bytes) {}

  /// One line.
  std::string line();

 private:
  std::string commandLine(const std::string& command);
  std::string flagWords(const vesk::FlagSpec& flag, bool query);
  void choosePlace();

  std::string word(vesk::ArgType type, WordKind kind);
  std::string text(WordKind kind);
  std::string nameInScene(WordKind kind);
  std::string freeText();
  std::string confined(std::string text) const;

  std::string sceneNode();
  std::string nodeName();
  std::string annotationName();
  std::string portName();
  std::string portPath();
  std::string endOfWire(bool source);
  std::string nodeType();
  std::string dataType();
  orvlib::PortObject* port(orvlib::NodeObject& node);
  orvlib::PortObject& childOf(orvlib::PortObject& port);

  SessionWorld& world_;
  Bytes bytes_;
  std::string command_;
  bool confined_ = false;

  // Where in the scene the line is at work; null where there is nothing.
  std::string graphName_;
  orvlib::CompoundObject* level_ = nullptr;
  orvlib::NodeObject* node_ = nullptr;
};

}  // namespace fuzz
