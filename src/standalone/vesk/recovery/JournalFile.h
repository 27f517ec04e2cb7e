#pragma once

#include <string>
#include <string_view>

namespace vesk {

// A program's journal in the folder of journals: `20261121-234500-4711.vesk`, named after the time
// in UTC and the process, locked while the program runs. The scenes that it opened stand beside it:
// `20261121-234500-4711.1`, `.2` and so on.

inline constexpr std::string_view kJournalEnding = ".vesk";

/// The comment in a journal that tells of an opened scene begins like this; the path follows in
/// quotes.
inline constexpr std::string_view kOpenedMark = "opened ";

/// The file with the bytes of the scene that was opened as the `number`th, from 1.
std::string copyOfScene(const std::string& journal, int number);

/// Takes the lock of a file without waiting for it. -1 when another program has it or there is no
/// such file.
int lockFile(const std::string& path);

/// Removes a journal and the scenes beside it.
void removeJournal(const std::string& path);

}  // namespace vesk
