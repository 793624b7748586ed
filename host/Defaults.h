// The host's store of defaults: typed, numbered and named blocks that outlive a run of the host.
#pragma once

#include "host/Memory.h"
#include "host/Strings.h"

#pragma GCC visibility push(default)

/// A copy of the stored default of that type (a four-character code) and id, in a new block that the caller
/// disposes of; null if there is none.
[[nodiscard]] Handle GetDefaultsResource(unsigned long type, short id);
/// Stores a copy of the block under type, id and name in place of an earlier one. The block stays the
/// caller's. A failure is told to the user by the host, if at all.
void SetDefaultsResource(Handle data, unsigned long type, short id, CStr255 name);

#pragma GCC visibility pop
