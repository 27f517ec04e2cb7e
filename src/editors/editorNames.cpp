#include "editors/editorNames.h"

const KString kParameterEditorCommand("orvParameterEditor");
