// The menu of templates.
#pragma once

#include "host/TypeCodes.h"

struct OpaqueMenuRef;

/// The file type of templates.
inline constexpr OSType kTemplateFileType = FourCC("GTMP");

/// Replaces all entries after the fourth by the names of the stored templates of that file type, in the
/// store's order.
void BuildTemplateMenu(OpaqueMenuRef* menu, unsigned long fileType);
