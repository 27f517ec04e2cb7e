#include "standalone/host/engine/HostAccess.h"

VESK_API_OPEN

KString HostAccess::string(std::string utf8) {
  KString result;
  if (!utf8.empty()) result.rep_ = new KString::Rep(std::move(utf8));
  return result;
}

KStringArray HostAccess::stringArray(const std::vector<std::string>& utf8) {
  KStringArray result;
  for (const std::string& text : utf8) result.append(string(text));
  return result;
}

std::vector<std::string> HostAccess::texts(const KStringArray& array) {
  std::vector<std::string> result;
  result.reserve(array.length());
  for (const KString& element : array) result.emplace_back(text(element));
  return result;
}

vesk::SyntaxData& HostAccess::data(KSyntax& syntax) {
  if (syntax.rep_->references > 1) {
    auto* own = new KSyntax::Rep(*syntax.rep_);
    own->references = 1;
    --syntax.rep_->references;
    syntax.rep_ = own;
  }
  return *syntax.rep_;
}

KArgList HostAccess::argList(std::shared_ptr<const vesk::ArgumentArray> arguments) {
  const auto count = static_cast<unsigned int>(arguments->size());
  return argList(std::move(arguments), 0, count);
}

KArgList HostAccess::argList(std::shared_ptr<const vesk::ArgumentArray> arguments,
                             unsigned int first, unsigned int count) {
  KArgList list;
  list.rep_ = new KArgList::Rep{1, std::move(arguments), first, count};
  return list;
}

std::shared_ptr<const vesk::ArgumentArray> HostAccess::argumentsOf(const KArgList& list) {
  if (!list.rep_) return std::make_shared<vesk::ArgumentArray>();
  const auto& [references, array, first, count] = *list.rep_;
  if (first == 0 && count == array->size()) return array;
  const auto begin = array->begin() + first;
  return std::make_shared<vesk::ArgumentArray>(begin, begin + count);
}

void HostAccess::bind(KPxCommand& command, std::shared_ptr<const vesk::CommandEntry> entry) {
  delete command.rep_;
  command.rep_ = new KPxCommand::Rep{std::move(entry)};
}

const vesk::CommandEntry* HostAccess::entryOf(const KPxCommand& command) {
  return command.rep_ ? command.rep_->entry.get() : nullptr;
}

KObject HostAccess::object(std::shared_ptr<vesk::HostObject> object) {
  KObject result;
  if (!object) return result;
  KObject::Rep& handles = object->handles_;
  if (handles.references++ == 0) handles.object = std::move(object);
  result.rep_ = &handles;
  return result;
}

std::shared_ptr<vesk::HostObject> HostAccess::objectOf(const KObject& object) {
  return object.rep_ ? object.rep_->object : nullptr;
}

VESK_API_CLOSE
