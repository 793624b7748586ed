// Alerts and the color picker, as the host interface names them.
#include "host/Dialogs.h"

#include "easel/classic/MacRoman.h"
#include "easel/runtime/DialogResources.h"
#include "easel/runtime/Host.h"
#include "easel/runtime/Journal.h"
#include "easel/runtime/User.h"

using easel::runtime::journal;
using easel::runtime::theHost;

bool Confirm(short id) {
    journal("Confirm", id);
    const auto alert = easel::runtime::alertDescription(id);
    // A question that cannot be put is taken as declined.
    return alert && theHost().user->confirm(*alert) == easel::runtime::Answer::yes;
}

bool GetColor(TPoint<short>, unsigned char const* prompt, RGBColor const* color, RGBColor* result) {
    const std::string text = easel::classic::fromMacRoman(CStr255::FromPascal(prompt).Text());
    journal("GetColor", text);
    const auto picked = theHost().user->pickColor(text, *color);
    if (picked)
        *result = *picked;
    return picked.has_value();
}
