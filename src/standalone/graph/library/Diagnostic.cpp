#include "standalone/graph/library/Diagnostic.h"

#include <locale>
#include <sstream>

namespace orvlib {

std::string Diagnostic::toText() const {
  std::ostringstream text;
  text.imbue(std::locale::classic());
  text << file;
  if (line > 0) text << ':' << line << ':' << column;
  text << ": " << reason;
  return text.str();
}

}  // namespace orvlib
