// The answers that scenarios print.
#pragma once

#include "easel/play/Arguments.h"
#include "easel/play/Json.h"

namespace easel::play {

class Session;

// Each takes its arguments and gives one line. Throws PlayError.
Json printObject(Session& session, Arguments& arguments);
Json printStroke(Session& session, Arguments& arguments);
Json printFit(Session& session, Arguments& arguments);
Json printWindow(Session& session, Arguments& arguments);
Json printPalette(Session& session, Arguments& arguments);
Json printTemplates(Session& session, Arguments& arguments);
Json printDefaults(Session& session, Arguments& arguments);
Json printResourceFiles(Session& session, Arguments& arguments);

} // namespace easel::play
