#include "standalone/graph/model/WatchPointObject.h"

#include <algorithm>

#include "standalone/graph/edits/FaultPoints.h"
#include "standalone/graph/model/PortObject.h"
#include "standalone/graph/texts/ListText.h"
#include "standalone/graph/types/Conversion.h"
#include "standalone/graph/types/ValueText.h"

namespace orvlib {
namespace {

using ORV_v1::GraphAccess;

FaultPoint kParameterNames("WatchPoint getParameterNames");
FaultPoint kParameterValues("WatchPoint getParameterValues");
FaultPoint kDescription("WatchPoint getParameterDescription");
FaultPoint kValueDescription("WatchPoint getParameterValueDescription");
FaultPoint kParameterValue("WatchPoint getParameterValue");
FaultPoint kRecordNames("WatchPoint getRecordNames");
FaultPoint kClearRecorded("WatchPoint clearRecordedValues");
FaultPoint kRecordedValues("WatchPoint getRecordedValues");

const WatchPointParameter* findParameter(const char* name) {
  return name ? findWatchPointParameter(name) : nullptr;
}

}  // namespace

void WatchPointObject::record(std::uint64_t evaluation, const Value& value) {
  if (!setup_.enabled) return;
  due_ = false;
  const bool same = !records_.empty() && sameValue(records_.back().value, value);
  if (setup_.changesOnly && same) return;
  records_.push({evaluation, value}, setup_.limit);
}

bool WatchPointObject::getParameterNames(ORV_v1::StringArray& names) {
  if (kParameterNames.refuses()) return false;
  names.clear();
  for (const WatchPointParameter& row : watchPointParameters()) names.add(row.name);
  return true;
}

bool WatchPointObject::getParameterValues(const char* name, ORV_v1::StringArray& values) {
  const WatchPointParameter* row = findParameter(name);
  if (kParameterValues.refuses() || !row) return false;
  values.clear();
  for (const WatchPointChoice& choice : row->choices) values.add(choice.value);
  return true;
}

bool WatchPointObject::getParameterDescription(const char* name, ORV_v1::String& description) {
  const WatchPointParameter* row = findParameter(name);
  if (kDescription.refuses() || !row) return false;
  description = GraphAccess::makeString(row->description);
  return true;
}

bool WatchPointObject::getParameterValueDescription(const char* name, const char* value,
                                                    ORV_v1::String& description) {
  const WatchPointParameter* row = findParameter(name);
  if (kValueDescription.refuses() || !row || !value) return false;
  for (const WatchPointChoice& choice : row->choices) {
    if (std::string_view(value) != choice.value) continue;
    description = GraphAccess::makeString(choice.description);
    return true;
  }
  return false;
}

bool WatchPointObject::getParameterValue(const char* name, ORV_v1::String& value) {
  const WatchPointParameter* row = findParameter(name);
  if (kParameterValue.refuses() || !row) return false;
  value = GraphAccess::makeString(row->get(setup_));
  return true;
}

bool WatchPointObject::getRecordNames(ORV_v1::StringArray& names) {
  if (kRecordNames.refuses()) return false;
  names.clear();
  for (const char* name : {"value", "evaluation"}) names.add(name);
  return true;
}

bool WatchPointObject::clearRecordedValues() {
  if (kClearRecorded.refuses() || !port_) return false;
  records_.clear();
  return true;
}

bool WatchPointObject::getRecordedValues(const char* name, ORV_v1::StringArray& values) {
  if (kRecordedValues.refuses()) return false;
  const std::string_view asked = name ? name : "";
  if (asked != "value" && asked != "evaluation") return false;
  std::vector<std::string> texts;
  // A smaller limit takes away nothing until the next record, as it may be undone.
  const std::size_t hidden = records_.size() - std::min<std::size_t>(records_.size(), setup_.limit);
  for (std::size_t i = hidden; i < records_.size(); ++i) {
    const Record& record = records_[i];
    texts.push_back(asked == "value" ? writeList(printValue(record.value, setup_.form))
                                     : std::to_string(record.evaluation));
  }
  GraphAccess::textsOf(values) = std::move(texts);
  return true;
}

}  // namespace orvlib
