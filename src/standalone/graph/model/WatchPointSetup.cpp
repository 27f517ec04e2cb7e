#include "standalone/graph/model/WatchPointSetup.h"

#include <algorithm>
#include <charconv>
#include <optional>

namespace orvlib {
namespace {

using Setup = WatchPointSetup;

// Choices are in the order of the values that they stand for.

constexpr WatchPointChoice kRecords[] = {
    {"all", "Every evaluation."},
    {"changes", "Each evaluation that gave another value."},
};

constexpr WatchPointChoice kFormats[] = {
    {"shortest", "The fewest digits that give the number back, such as 0.1 or 1e+20."},
    {"fixed", "So many decimals as the parameter digits says, such as 0.100000."},
    {"scientific",
     "One digit, so many decimals as the parameter digits says, and the power of ten, such as "
     "1.000000e-01."},
};

bool& recordOf(Setup& setup) { return setup.changesOnly; }
std::uint32_t& limitOf(Setup& setup) { return setup.limit; }
FloatForm::Style& formatOf(Setup& setup) { return setup.form.style; }
std::uint8_t& digitsOf(Setup& setup) { return setup.form.digits; }

template <auto kField>
using FieldType = std::remove_reference_t<decltype(kField(std::declval<Setup&>()))>;

/// A parameter that is kept as the index of its choice.
template <auto kField, const auto& kChoices>
constexpr WatchPointParameter choice(const char* name, const char* description) {
  return {name, description, kChoices,
          [](Setup& setup, std::string_view value) {
            const auto* found = std::ranges::find(kChoices, value, &WatchPointChoice::value);
            if (found == std::end(kChoices)) return false;
            kField(setup) = static_cast<FieldType<kField>>(found - std::begin(kChoices));
            return true;
          },
          [](const Setup& setup) {
            Setup copy = setup;
            return std::string(kChoices[static_cast<std::size_t>(kField(copy))].value);
          }};
}

std::optional<std::uint32_t> readNumber(std::string_view text) {
  std::uint32_t number = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  const bool whole = error == std::errc() && end == text.data() + text.size();
  return whole ? std::optional(number) : std::nullopt;
}

template <auto kField, std::uint32_t kLeast, std::uint32_t kMost>
constexpr WatchPointParameter number(const char* name, const char* description) {
  return {name,
          description,
          {},
          [](Setup& setup, std::string_view value) {
            const auto read = readNumber(value);
            if (!read || *read < kLeast || *read > kMost) return false;
            kField(setup) = static_cast<FieldType<kField>>(*read);
            return true;
          },
          [](const Setup& setup) {
            Setup copy = setup;
            return std::to_string(kField(copy));
          }};
}

static_assert(FloatForm::kMostDigits == 20, "a description says it");

constexpr WatchPointParameter kParameters[] = {
    choice<recordOf, kRecords>("record", "Which evaluations are recorded."),
    number<limitOf, 1, 1000000>(
        "limit",
        "How many evaluations are kept, the latest ones: a whole number from 1 to 1000000."),
    choice<formatOf, kFormats>("format", "How recorded floats are shown."),
    number<digitsOf, 0, FloatForm::kMostDigits>(
        "digits",
        "How many decimals the formats fixed and scientific show: a whole number from 0 to 20."),
};

}  // namespace

bool WatchPointSetup::set(std::string_view name, std::string_view value) {
  const WatchPointParameter* parameter = findWatchPointParameter(name);
  return parameter && parameter->set(*this, value);
}

std::string WatchPointSetup::get(std::string_view name) const {
  const WatchPointParameter* parameter = findWatchPointParameter(name);
  return parameter ? parameter->get(*this) : "";
}

std::span<const WatchPointParameter> watchPointParameters() { return kParameters; }

const WatchPointParameter* findWatchPointParameter(std::string_view name) {
  const auto* found = std::ranges::find(kParameters, name, &WatchPointParameter::name);
  return found == std::end(kParameters) ? nullptr : found;
}

}  // namespace orvlib
