#pragma once

#include <QPointer>
#include <QWidget>
#include <string>
#include <unordered_map>

#include "platform/orvUI_1_0/CompoundEditor.h"

/// A panel with a compound editor. Both widgets are the host's, and read as null once they are
/// gone.
struct EditorEntry {
  QPointer<QWidget> panel;
  QPointer<orvUI_v1::CompoundEditor> editor;
};

/// The compound editors by the name of their panel, in UTF-8. An entry stays when its panel goes,
/// and is used again when the name comes again.
extern std::unordered_map<std::string, EditorEntry> editorRegistry;

/// Closes every panel that is there.
void closeCompoundEditors();
