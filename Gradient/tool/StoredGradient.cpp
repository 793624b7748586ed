// The current gradient in the host's store of defaults.
#include "Gradient/tool/StoredGradient.h"

#include "Gradient/model/GradientBlock.h"
#include "Gradient/tool/Globals.h"
#include "host/Defaults.h"
#include "host/TypeCodes.h"

namespace {

constexpr OSType kDefaultsType = FourCC("GRDT");
constexpr short kDefaultsId = 10001;

} // namespace

void InitDefaults() {
    StOwnedBlock const block(GetDefaultsResource(kDefaultsType, kDefaultsId));
    if (block != nullptr) {
        ReadGradient(block.get(), gCurrentGradient);
    } else {
        gCurrentGradient = CGradientData();
    }
}

void SaveDefaults() {
    StOwnedBlock const block(MakeGradientData(gCurrentGradient));
    if (block != nullptr) {
        SetDefaultsResource(block.get(), kDefaultsType, kDefaultsId, "Gradient Default");
    }
}
