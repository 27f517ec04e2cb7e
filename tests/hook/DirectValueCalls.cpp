#include "tests/hook/DirectValueCalls.h"

#include "platform/ORV_1_0/ModifyCompoundPortCommand.h"
#include "platform/ORV_1_0/ModifyNodePortCommand.h"
#include "tests/hook/LibraryOperation.h"

namespace {

void note(const std::string& call) {
  if (DirectValueCalls::current) DirectValueCalls::current->note(call);
}

void note(const std::string& target, const char* name, const ORV_v1::StringArray& values,
          bool interactive) {
  std::string list;
  for (unsigned int i = 0; i < values.size(); ++i) list += std::string(i ? "," : "") + values[i];
  note(target + " " + name + " {" + list + "}" + (interactive ? " interactive" : ""));
}

}  // namespace

DirectValueCalls* DirectValueCalls::current = nullptr;

DirectValueCalls::DirectValueCalls() { current = this; }
DirectValueCalls::~DirectValueCalls() { current = nullptr; }

void DirectValueCalls::note(const std::string& call) {
  texts_.push_back(call);
  if (atCall) atCall();
}

namespace ORV_v1 {

bool ModifyNodePortCommand::setPortValues(const AddRefWrapper<Node>& node, const char* name,
                                          const StringArray& values, bool interactive) {
  note(std::string("node ") + node->getFullPathName().getName(), name, values, interactive);
  static const auto own = libraryOperation<bool, ModifyNodePortCommand*, const AddRefWrapper<Node>&,
                                           const char*, const StringArray&, bool>(
      "_ZN6ORV_v121ModifyNodePortCommand13setPortValuesERKNS_13AddRefWrapperINS_4NodeEEEPKcRKNS_"
      "11StringArrayEb");
  return own(this, node, name, values, interactive);
}

bool ModifyCompoundPortCommand::setPortValues(const char* name, const StringArray& values,
                                              bool interactive) {
  note("compound", name, values, interactive);
  static const auto own =
      libraryOperation<bool, ModifyCompoundPortCommand*, const char*, const StringArray&, bool>(
          "_ZN6ORV_v125ModifyCompoundPortCommand13setPortValuesEPKcRKNS_11StringArrayEb");
  return own(this, name, values, interactive);
}

bool ModifyNodePortCommand::doit() {
  note("node doit");
  static const auto own =
      libraryOperation<bool, ModifyNodePortCommand*>("_ZN6ORV_v121ModifyNodePortCommand4doitEv");
  return own(this);
}

bool ModifyCompoundPortCommand::doit() {
  note("compound doit");
  static const auto own = libraryOperation<bool, ModifyCompoundPortCommand*>(
      "_ZN6ORV_v125ModifyCompoundPortCommand4doitEv");
  return own(this);
}

}  // namespace ORV_v1
