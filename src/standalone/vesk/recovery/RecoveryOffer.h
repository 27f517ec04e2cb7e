#pragma once

#include <memory>
#include <string>
#include <vector>

class QWidget;

namespace vesk {

class AbandonedJournal;
class HostSession;
class KeptJournal;
struct ProgramOptions;

/// The folder of journals among the user's settings.
std::string journalFolder(const HostSession& session);

/// Whether a program keeps a journal by itself: its lines come from where nobody finds them again,
/// a prompt, a window or a pipe. Transcripts, and programs that were told of a journal, keep none.
bool keepsJournal(const ProgramOptions& options);

/// Begins the program's journal. Null, with a warning, when that cannot be.
std::unique_ptr<KeptJournal> keepJournal(HostSession& session);

/// Recovers, discards or tells of what abrupt ends left, as the options ask for it. In front of a
/// window the user is asked. Without a journal of its own (`kept` null) nothing is recovered.
void takeUpJournals(const ProgramOptions& options, HostSession& session, KeptJournal* kept,
                    QWidget* window);

}  // namespace vesk
