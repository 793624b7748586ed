// The menu of templates.
#pragma once

struct OpaqueMenuRef;

/// Replaces all entries after the fourth by the names of the stored templates of that file type, in the
/// store's order.
void BuildTemplateMenu(OpaqueMenuRef* menu, unsigned long fileType);
