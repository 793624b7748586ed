// Objects and gradients as scenarios describe them.
#pragma once

#include "easel/drawing/Object.h"
#include "easel/play/Arguments.h"
#include "host/Gradient.h"

namespace easel::play {

// Whether `newObject` makes objects of the kind. Scenarios name no others: pictures and text come from files.
bool canBeAdded(drawing::Kind kind);

// `KIND ID …`: an unfilled object of that kind; open kinds have a thin black line, since nothing else of them
// would show. Throws PlayError.
drawing::Object newObject(Arguments& arguments);

// `TYPE ANGLE START-H START-V END-H END-V STOP…`, a stop being `percent:red,green,blue`. Throws PlayError.
CGradientData gradientRecord(Arguments& arguments);

} // namespace easel::play
