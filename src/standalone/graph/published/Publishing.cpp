// How a compound is written to a definition file, and offered as a kind of node.

#include "standalone/graph/edits/FaultPoints.h"
#include "standalone/graph/edits/Transaction.h"
#include "standalone/graph/library/Names.h"
#include "standalone/graph/library/RuntimeRegistry.h"
#include "standalone/graph/model/ChangeHold.h"
#include "standalone/graph/model/NameRules.h"
#include "standalone/graph/published/Describing.h"
#include "standalone/graph/published/Following.h"
#include "standalone/graph/published/Instances.h"

namespace orvlib {
namespace {

using ORV_v1::GraphAccess;

FaultPoint kSave("Compound save");
FaultPoint kPublish("Compound publish");
FaultPoint kPublishGraph("Compound publishGraph");

constexpr const char* kRefused = "the library refused it";

std::string textOf(const char* text) { return text ? text : ""; }

std::string apart(std::string_view text) { return "'" + std::string(text) + "'"; }

/// One attempt to write a compound out. Its steps give a reason, or an empty text.
class Attempt {
 public:
  Attempt(CompoundObject& compound, const FaultPoint& fault) : compound_(compound) {
    const RuntimeRegistry* registry = RuntimeRegistry::current();
    if (fault.refuses()) {
      reason_ = kRefused;
    } else if (!compound.node()) {
      reason_ = "it is in no graph any more";
    } else if (!registry || !registry->find(runtimeName())) {
      reason_ = "the runtime '" + runtimeName() + "' is not loaded";
    } else {
      runtime_ = &GraphAccess::loaded(*registry->find(runtimeName()));
      if (root().empty()) reason_ = "the runtime '" + runtimeName() + "' has no root library";
    }
  }

  bool isGood() const { return reason_.empty(); }
  const std::string& reason() const { return reason_; }
  const std::string& root() const { return runtime_->description().rootLibrary; }
  LoadedRuntime& runtime() { return *runtime_; }
  const std::string& name() const { return name_; }

  /// What the compound is to be called. An empty library is the root.
  void setName(const std::string& name, const std::string& library) {
    if (!isGood()) return;
    if (!isIdentifier(name)) {
      reason_ =
          "the name " + apart(name) + " is no name: use letters, digits and '_', not a digit first";
    } else if (!library.empty() && !isQualifiedName(library)) {
      reason_ =
          "the library " + apart(library) + " is no library name: use names with '::' between them";
    } else if (!library.empty() && !liesUnderRoot(library, root())) {
      reason_ =
          "the library " + apart(library) + " does not lie under the root library " + apart(root());
    }
    name_ = (library.empty() ? root() : library) + "::" + name;
    if (isGood() && refersTo(compound_, name_)) reason_ = "it would hold itself";
  }

  void write(const std::filesystem::path& file, std::string_view description) {
    if (!isGood()) return;
    reason_ = runtime_->writeDefinition(describeCompound(compound_, name_, description), file);
  }

  void publish(const std::filesystem::path& file, std::string_view description, bool replace) {
    if (!isGood()) return;
    reason_ = runtime_->publish({describeCompound(compound_, name_, description), replace, file});
    if (!isGood()) return;
    const ChangedCompounds changed{{name_, runtime_->compoundFile(name_)}};
    RuntimeRegistry::current()->report(followDefinitions(runtimeName(), changed));
  }

  /// Whether all went well; else says what did not.
  bool finish(const std::string& what, ORV_v1::String& error) const {
    if (isGood()) return true;
    const std::string path = compound_.node() ? " " + apart(compound_.node()->fullPath()) : "";
    error = GraphAccess::makeString("The compound" + path + " cannot be " + what + ": " + reason_ +
                                    ".");
    return false;
  }

 private:
  const std::string& runtimeName() const { return compound_.node()->core().runtime(); }

  CompoundObject& compound_;
  LoadedRuntime* runtime_ = nullptr;
  std::string name_;
  std::string reason_;
};

std::string publishedAs(const std::string& name) { return "published as " + apart(name); }

/// The compound becomes an unchanged copy of what it was published as. One that is a reference to
/// another stays that, and so does one that must not be edited where it is. One that lies in a
/// reference to what it replaced is gone by now.
void setPublishedOrigin(CompoundObject& compound, const std::string& name) {
  const CompoundObject* level = compound.node() ? compound.node()->parent() : nullptr;
  if (!level || !level->isOpenToEdits() || compound.isReference()) return;
  ContainerObject* container = compound.node()->container();
  std::optional<ChangeHold> hold;
  if (container) hold.emplace(*container);
  Transaction().run(SetOrigin{CompoundRef(&compound), name, false});
}

}  // namespace

bool CompoundObject::save(const char* file, ORV_v1::String& error) {
  Attempt attempt(*this, kSave);
  const std::string path = textOf(file);
  if (path.empty()) {
    error = GraphAccess::makeString("The compound cannot be saved: no file is named.");
    return false;
  }
  if (attempt.isGood()) attempt.setName(cleanName(node_->name()), {});
  attempt.write(path, {});
  return attempt.finish("saved", error);
}

bool CompoundObject::publish(const char* name, const char* library, const char* description,
                             bool replace, ORV_v1::String& error) {
  Attempt attempt(*this, kPublish);
  attempt.setName(textOf(name), textOf(library));
  attempt.publish({}, textOf(description), replace);
  if (!attempt.finish(publishedAs(textOf(name)), error)) return false;
  setPublishedOrigin(*this, attempt.name());
  return true;
}

bool CompoundObject::publishGraph(const char* name, const char* library, const char* description,
                                  const char* file, ORV_v1::String& error) {
  ContainerObject* container = node_ ? node_->container() : nullptr;
  CompoundObject& top = container ? *container->top().compound() : *this;
  Attempt attempt(top, kPublishGraph);
  attempt.setName(textOf(name), textOf(library));
  const std::filesystem::path path = textOf(file);
  if (attempt.isGood() && !path.empty() && !attempt.runtime().isInPublishedFolder(path)) {
    attempt.write(path, textOf(description));
  } else {
    attempt.publish(path, textOf(description), true);
  }
  return attempt.finish(publishedAs(textOf(name)), error);
}

}  // namespace orvlib
