// What a stored text says of watch points.

#include <algorithm>

#include "standalone/graph/storage/GraphReader.h"

namespace orvlib {

bool GraphReader::readSetup(WatchPointSetup& setup) {
  if (!setup.set("record", words()[2])) return fail(inQuotes(words()[2]) + " cannot be recorded");
  if (!setup.set("limit", words()[3])) return fail(inQuotes(words()[3]) + " is no limit");
  std::size_t at = 4;
  // What follows comes in pairs.
  setup.enabled = words().size() % 2 == 0;
  if (!setup.enabled && words()[at++] != "off") return fail(inQuotes(words()[4]) + " is not off");
  return readFurtherParameters(at, setup);
}

bool GraphReader::readFurtherParameters(std::size_t at, WatchPointSetup& setup) {
  const auto further = watchPointParameters().subspan(kStatedParameters);
  std::uint32_t seen = 0;
  for (; at < words().size(); at += 2) {
    const std::string_view name = words()[at];
    const auto found = std::ranges::find(further, name, &WatchPointParameter::name);
    if (found == further.end()) return fail(inQuotes(name) + " is no further parameter");
    const std::uint32_t bit = 1u << (found - further.begin());
    if ((seen & bit) != 0) return fail("the parameter " + inQuotes(name) + " comes twice");
    seen |= bit;
    if (!found->set(setup, words()[at + 1])) {
      return fail("the parameter " + inQuotes(name) + " cannot be " + inQuotes(words()[at + 1]));
    }
  }
  return true;
}

bool GraphReader::readWatch() {
  const Named named = subjectPort(words()[1]);
  PortObject* around = named.port || named.lost ? nullptr : portWithInnerLines(words()[1]);
  if (!named.port && !around) return notFound(named, words()[1]);
  if (!around && named.port->watchPoint()) {
    return fail(inQuotes(words()[1]) + " is watched already");
  }
  WatchPointSetup setup;
  if (!readSetup(setup)) return false;
  if (around) return keepInnerLine(*around);
  WatchPointRef watchPoint(new WatchPointObject);
  Mutator::setUp(*watchPoint, setup);
  Mutator::exchangeWatchPoint(*named.port, watchPoint);
  return true;
}

bool GraphReader::readWatchMetadata() {
  const Named named = subjectPort(words()[1]);
  PortObject* around = named.port || named.lost ? nullptr : portWithInnerLines(words()[1]);
  if (around) return keepInnerLine(*around);
  if (!named.port) return notFound(named, words()[1]);
  if (!named.port->watchPoint()) return fail(inQuotes(words()[1]) + " is not watched");
  return addMetadata(*named.port->watchPoint(), 2);
}

}  // namespace orvlib
