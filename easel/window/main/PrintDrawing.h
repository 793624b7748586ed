// Puts a drawing on paper.
#pragma once

class QPrinter;
class QString;
class QWidget;

namespace easel::drawing {
class Drawing;
}

namespace easel::window {

struct Interaction;

// Turns the printer's page the way the drawing lies.
void turnPage(const drawing::Drawing& drawing, QPrinter& printer);

enum class Printed { Yes, No, Cancelled };

// One page with the drawing in its middle, as large as the page lets it be but not larger than it is. A page
// that is a PDF file holds outlines and gradients, any other a picture. What takes long shows its progress
// over that window and can be cancelled; the user is told what goes wrong.
Printed printDrawing(const drawing::Drawing& drawing, QPrinter& printer, Interaction& interaction,
                     QWidget* over);

} // namespace easel::window
