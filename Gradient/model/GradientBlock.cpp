// Gradients in the host's memory blocks.
#include "Gradient/model/GradientBlock.h"

void ReadGradient(Handle block, CGradientData& out) {
    HLock(block);
    bool const read = ExtractGradientInfo(*block, GetHandleSize(block), out);
    HUnlock(block);
    if (!read) {
        out = CGradientData();
    }
}
