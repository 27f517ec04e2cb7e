#include "standalone/widgets/parameters/Choices.h"

#include "standalone/graph/texts/ListText.h"
#include "standalone/graph/types/ValueText.h"

namespace orvuilib {
namespace {

Choice readChoice(const std::string& text) {
  const auto at = text.find('=');
  const std::string value = text.substr(0, at);
  const std::string label = at == std::string::npos ? value : text.substr(at + 1);
  return {QString::fromStdString(value), QString::fromStdString(label)};
}

std::vector<std::string> choiceTexts(const orvlib::PortObject& port) {
  const auto* values = port.metadata().find("choices");
  if (!values) return {};
  if (values->size() > 1) return *values;
  return orvlib::readList(values->front()).value_or(*values);
}

}  // namespace

std::vector<Choice> readChoices(const orvlib::PortObject& port) {
  std::vector<Choice> choices;
  const orvlib::ValueType& type = port.valueType();
  if (type.isArray() || !type.components.empty()) return choices;
  for (const std::string& text : choiceTexts(port)) {
    Choice choice = readChoice(text);
    if (!orvlib::parseValue(type, {choice.value.toStdString()}).value) continue;
    choices.push_back(std::move(choice));
  }
  return choices;
}

}  // namespace orvuilib
