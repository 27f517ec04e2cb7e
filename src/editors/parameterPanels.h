#pragma once

#include <QPointer>
#include <QWidget>

#include "platform/OpenVesk/KString.h"
#include "platform/orvUI_1_0/ParameterEditor.h"

/// The two panels: that of the parameters, and that of information.
inline constexpr int kParameterPanels = 2;

extern const KString parameterPanelNames[kParameterPanels];
extern const KString parameterPanelLabels[kParameterPanels];

/// Both are the host's, and read as null once they are gone.
extern QPointer<QWidget> parameterPanels[kParameterPanels];
extern QPointer<orvUI_v1::ParameterEditor> parameterEditors[kParameterPanels];

/// Closes the panels whose editor is there.
void closeParameterEditors();
