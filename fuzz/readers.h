#pragma once

#include <string_view>

namespace fuzz {

// What the platform reads from outside: each checks that a text is taken or refused, and that what
// was taken means the same when it is written and read again.

void readValueList(std::string_view text);
void readPropertyText(std::string_view text);
void readTypedValues(std::string_view text);

void readGraphText(std::string_view text);
void readContentText(std::string_view text);
void readSelectionText(std::string_view text);
void readSceneText(std::string_view text);

void readRuntimeFile(std::string_view text);
void readLibraryFile(std::string_view text);
void readCompoundFile(std::string_view text);

void readOptionVariables(std::string_view text);
void readWorkspaceText(std::string_view text);
void readCatalogue(std::string_view text);
void readScriptFile(std::string_view text);
void readTranscript(std::string_view text);

}  // namespace fuzz
