// What the plug-in asks for while it is loaded and started, and what every click begins and ends with.
#include "host/Defaults.h"
#include "host/Dialogs.h"
#include "host/Drawing.h"
#include "host/Files.h"

#include <cstdio>

namespace {

OpaqueGrafPtr* gCurrentPort = nullptr;

} // namespace

// These are called while the module is being loaded, before there is a first message.
double Fix2X(std::int32_t fixed) {
    return fixed / 65536.0;
}

std::int32_t Long2Fix(std::int32_t number) {
    return number * 65536;
}

UserItemUPP NewUserItemUPP(UserItemUPP procedure) {
    return procedure;
}

// Nothing is kept from one run to the next: no current gradient and no templates. The plug-in then starts
// with the default record, and every look into its folder would be a call that this host lacks.
Handle GetDefaultsResource(unsigned long /*type*/, short /*id*/) {
    return nullptr;
}

FSSpec FindSecondaryPreferencesFolder(CStr255 const& /*name*/, bool /*create*/) {
    return {};
}

OSErr FSMakeFSSpec(short /*vRefNum*/, long /*dirID*/, CStr255 const& /*name*/, FSSpec* out) {
    *out = {};
    return kFileNotFoundErr;
}

StGrafPortSaver::StGrafPortSaver() : port_(gCurrentPort) {}
StGrafPortSaver::~StGrafPortSaver() {
    gCurrentPort = port_;
}

void QD::SetPort(OpaqueGrafPtr* port) {
    gCurrentPort = port;
}

// Nothing is drawn into a port in this host, so no color and no pen is kept for one.
struct StThemeDrawingState::State {};
StThemeDrawingState::StThemeDrawingState() = default;
StThemeDrawingState::~StThemeDrawingState() = default;

void QD::RGBForeColor(RGBColor const* /*color*/) {}

void SysBeep(short /*duration*/) {
    std::puts("beep");
}
