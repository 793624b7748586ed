// Putting a gradient on a drawing object.
#pragma once

class CGradientData;
class TessObject;

/// Gives the object a solid black fill pattern and a new gradient made from the record.
void PutGradient(TessObject& object, CGradientData const& data);
