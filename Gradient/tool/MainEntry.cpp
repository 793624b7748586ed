// The module's one exported entry.
#include <cstdint>

struct XTNLParmBlk;

extern "C" __attribute__((visibility("default"))) std::int32_t MainEntry(std::int16_t, XTNLParmBlk*);

std::int32_t MainEntry(std::int16_t, XTNLParmBlk*) { return 0; }
