// The module's entry and the dispatcher of the host's messages.
#pragma once

#include "host/Palette.h"

#include <cstdint>

/// The one exported entry; see XTNLEntry. Message 1 starts the plug-in, 2 shuts it down, others do nothing.
/// Always 0.
extern "C" __attribute__((visibility("default"))) std::int32_t MainEntry(std::int16_t message,
                                                                         XTNLParmBlk* block);

/// Carries a message out. The parameter block is not read. Always 0.
short Norv_Gradient(short message, XTNLParmBlk* block);
