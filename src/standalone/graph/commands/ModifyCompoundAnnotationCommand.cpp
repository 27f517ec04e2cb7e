#include "platform/ORV_1_0/ModifyCompoundAnnotationCommand.h"

#include <variant>

#include "standalone/graph/commands/LevelLink.h"
#include "standalone/graph/model/NameRules.h"

namespace ORV_v1 {
namespace {

using namespace orvlib;

FaultPoint kSetParent("ModifyCompoundAnnotationCommand setParentCompound");
FaultPoint kBackdrop("ModifyCompoundAnnotationCommand createBackdrop");
FaultPoint kNote("ModifyCompoundAnnotationCommand createStickyNote");
FaultPoint kDelete("ModifyCompoundAnnotationCommand deleteAnnotation");
FaultPoint kRename("ModifyCompoundAnnotationCommand renameAnnotation");
FaultPoint kSetMetadata("ModifyCompoundAnnotationCommand setAnnotationMetaDataValue");
FaultPoint kDoit("ModifyCompoundAnnotationCommand doit");
FaultPoint kRedo("ModifyCompoundAnnotationCommand redo");
FaultPoint kUndo("ModifyCompoundAnnotationCommand undo");

constexpr const char* kBackdropName = "backdrop";
constexpr const char* kNoteName = "note";

struct NewAnnotation {
  AnnotationKind kind;
  std::string name;
};

struct GoneAnnotation {
  std::string name;
};

struct NewName {
  std::string name;
  std::string newName;
};

struct NewMetadata {
  std::string name;
  std::string key;
  std::string value;
};

using Request = std::variant<NewAnnotation, GoneAnnotation, NewName, NewMetadata>;

bool isText(const char* text) { return text && *text; }

bool run(Transaction& edits, CompoundObject& level, const NewAnnotation& request) {
  std::string name = level.annotations().uniqueName(cleanName(request.name));
  const AnnotationRef annotation(new AnnotationObject(request.kind, std::move(name)));
  const unsigned int end = level.annotations().count();
  return edits.run(InsertAnnotation{{CompoundRef(&level), annotation, end}});
}

bool run(Transaction& edits, CompoundObject& level, const GoneAnnotation& request) {
  AnnotationObject* found = level.annotations().find(request.name);
  if (!found) return true;
  return edits.run(RemoveAnnotation{{CompoundRef(&level), AnnotationRef(found), 0}});
}

bool run(Transaction& edits, CompoundObject& level, const NewName& request) {
  AnnotationObject* found = level.annotations().find(request.name);
  const std::string wanted = cleanName(request.newName);
  if (!found || wanted == found->name()) return true;
  return edits.run(RenameAnnotation{AnnotationRef(found), level.annotations().uniqueName(wanted)});
}

bool run(Transaction& edits, CompoundObject& level, const NewMetadata& request) {
  AnnotationObject* found = level.annotations().find(request.name);
  if (!found) return true;
  Properties set = found->metadata();
  if (request.value.empty()) {
    set.clear(request.key);
  } else {
    set.set(request.key, {request.value});
  }
  return edits.run(SetMetadata{AnnotationRef(found), std::move(set)});
}

}  // namespace

struct ModifyCompoundAnnotationCommand::Rep {
  LevelLink link;
  absl::InlinedVector<Request, 1> requests;
  RecordedCommand command;

  bool canRecord(const FaultPoint& fault) const { return !fault.refuses() && !command.isBuilt(); }

  bool record(Request request) {
    requests.push_back(std::move(request));
    return true;
  }
};

ModifyCompoundAnnotationCommand::ModifyCompoundAnnotationCommand() : rep_(nullptr) {}
ModifyCompoundAnnotationCommand::~ModifyCompoundAnnotationCommand() { delete rep_; }

bool ModifyCompoundAnnotationCommand::setParentCompound(Container* container, const char* path) {
  return !kSetParent.refuses() && !made(rep_).command.isBuilt() && rep_->link.bind(container, path);
}

bool ModifyCompoundAnnotationCommand::createBackdrop(const char* name) {
  if (!made(rep_).canRecord(kBackdrop)) return false;
  return rep_->record(NewAnnotation{AnnotationKind::Backdrop, isText(name) ? name : kBackdropName});
}

bool ModifyCompoundAnnotationCommand::createStickyNote() {
  return made(rep_).canRecord(kNote) &&
         rep_->record(NewAnnotation{AnnotationKind::StickyNote, kNoteName});
}

bool ModifyCompoundAnnotationCommand::deleteAnnotation(const char* name) {
  return made(rep_).canRecord(kDelete) && isText(name) && rep_->record(GoneAnnotation{name});
}

bool ModifyCompoundAnnotationCommand::renameAnnotation(const char* name, const char* newName) {
  if (!made(rep_).canRecord(kRename) || !isText(name) || !isText(newName)) return false;
  return rep_->record(NewName{name, newName});
}

bool ModifyCompoundAnnotationCommand::setAnnotationMetaDataValue(const char* name, const char* key,
                                                                 const char* value) {
  if (!made(rep_).canRecord(kSetMetadata) || !isText(name) || !isText(key)) return false;
  return rep_->record(NewMetadata{name, key, value ? value : ""});
}

bool ModifyCompoundAnnotationCommand::doit() { return !kDoit.refuses() && redo(); }

bool ModifyCompoundAnnotationCommand::redo() {
  if (!rep_ || rep_->requests.empty()) return !kRedo.refuses();
  return rep_->command.redo(kRedo, rep_->link.container(), [this](Transaction& edits) {
    CompoundObject* level = rep_->link.level();
    if (!level) return false;
    for (const Request& request : rep_->requests) {
      if (!std::visit([&](const auto& one) { return run(edits, *level, one); }, request)) {
        return false;
      }
    }
    return true;
  });
}

void ModifyCompoundAnnotationCommand::undo() {
  if (rep_ && !rep_->requests.empty()) rep_->command.undo(kUndo, rep_->link.container());
}

}  // namespace ORV_v1
