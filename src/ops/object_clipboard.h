// The host's object clipboard.
#pragma once

#include "host/kinds.h"
#include "host/object_clipboard.h"
#include "ops/bus.h"

/// Null when the host has none.
inline IObjectClipboard* FindClipboard(CListenerObject& seeker) {
    return bus::Query<IObjectClipboard>(bus::FindObject(seeker, EditCategoryId, edit_kind::ObjectClipboard));
}
