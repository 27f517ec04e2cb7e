#pragma once

#include <string>
#include <string_view>

namespace vesk {

// A program's journal in the folder of journals: `20261121-234500-0004711.vesk`, named after the
// time in UTC and the process, locked while the program runs. The scenes that it opened stand
// beside it: `20261121-234500-0004711.1`, `.2` and so on.

inline constexpr std::string_view kJournalEnding = ".vesk";

// Comments in a journal that a replay reads, each with a path in quotes. Those on scenes stand
// ahead of the line that opened or saved them.
namespace mark {
inline constexpr std::string_view kFolder = "in";  ///< the working folder
inline constexpr std::string_view kOpened = "opened";
inline constexpr std::string_view kNotOpened = "not-opened";
inline constexpr std::string_view kSaved = "saved";
inline constexpr std::string_view kNotSaved = "not-saved";
inline constexpr std::string_view kRecovers = "recovers";    ///< another journal, from here on
inline constexpr std::string_view kRecovered = "recovered";  ///< all of it
}  // namespace mark

/// The text of a mark.
std::string markText(std::string_view mark, const std::string& path);

/// Whether a file is named as a journal is.
bool isJournalName(const std::string& name);

/// The file with the bytes of the scene that was opened as the `number`th, from 1.
std::string copyOfScene(const std::string& journal, int number);

/// Takes the lock of a file without waiting for it. -1 when another program has it or there is no
/// such file.
int lockFile(const std::string& path);

/// Removes a journal and the scenes beside it.
void removeJournal(const std::string& path);

/// Removes what has stood in the folder for a day and belongs to no journal.
void removeLeftovers(const std::string& folder);

}  // namespace vesk
