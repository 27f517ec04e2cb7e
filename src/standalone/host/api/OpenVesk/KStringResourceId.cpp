#include "platform/OpenVesk/KStringResourceId.h"

VESK_API_OPEN

KStringResourceId::KStringResourceId() = default;

KStringResourceId::KStringResourceId(const KStringResourceId& other) = default;

KStringResourceId::KStringResourceId(const char* pluginId, const char* key,
                                     const KString& defaultText)
    : pluginId_(pluginId), key_(key), defaultText_(defaultText) {}

KStringResourceId& KStringResourceId::operator=(const KStringResourceId& other) = default;

KStringResourceId::~KStringResourceId() = default;

VESK_API_CLOSE
