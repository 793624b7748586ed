// The module's entry and the dispatcher of the host's messages.
#include "Gradient/tool/MainEntry.h"

#include "Gradient/tool/Lifecycle.h"

namespace {

constexpr short kStartUpMessage = 1;
constexpr short kShutDownMessage = 2;

} // namespace

std::int32_t MainEntry(std::int16_t message, XTNLParmBlk* block) {
    return Norv_Gradient(message, block);
}

short Norv_Gradient(short message, XTNLParmBlk* /*block*/) {
    switch (message) {
    case kStartUpMessage:
        Init();
        break;
    case kShutDownMessage:
        CleanUp();
        break;
    default:
        break;
    }
    return 0;
}
