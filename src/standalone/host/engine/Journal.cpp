#include "standalone/host/engine/Journal.h"

#include "standalone/host/language/Tokenizer.h"

namespace vesk {

bool Journal::open(const std::string& path) {
  file_ = std::ofstream(path, std::ios::binary | std::ios::trunc);
  return file_.is_open();
}

void Journal::write(std::string_view line, const RunOptions& options, KStatus status) {
  if (!file_.is_open()) return;
  std::string note;
  if (!options.undo) note += " without undo";
  if (!options.display) note += " without echo";
  if (!status) note += " failed with status " + std::to_string(status.statusCode());
  if (!note.empty()) file_ << "//" << note << '\n';
  if (tokenize(line).error) {
    file_ << "// not readable: " << quoted(line) << '\n' << std::flush;
  } else {
    file_ << line << '\n' << std::flush;
  }
}

}  // namespace vesk
