// Putting a gradient on a drawing object.
#include "Gradient/tool/ObjectGradient.h"

#include "host/Gradient.h"
#include "host/Objects.h"
#include "host/SharedResource.h"

void PutGradient(TessObject& object, CGradientData const& data) {
    object.SetFillPattern(kBlackPat());
    object.SetGradient(SharedResourcePtr<CGradient>(new CGradient(data)));
}
