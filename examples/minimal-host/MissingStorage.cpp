// Memory blocks, resource files and what is stored in them, which this host lacks: it keeps nothing.
#include "Missing.h"
#include "host/Defaults.h"
#include "host/Files.h"
#include "host/Gradient.h"
#include "host/Strings.h"

Handle NewHandle(long /*size*/) {
    Missing();
}
void DisposeHandle(Handle /*block*/) {
    Missing();
}
long GetHandleSize(Handle /*block*/) {
    Missing();
}
void HLock(Handle /*block*/) {
    Missing();
}
void HUnlock(Handle /*block*/) {
    Missing();
}

void SetDefaultsResource(Handle /*data*/, unsigned long /*type*/, short /*id*/, CStr255 /*name*/) {
    Missing();
}
bool ExtractGradientInfo(char* /*bytes*/, long /*size*/, CGradientData& /*out*/) {
    Missing();
}

void EnumerShell(short /*vRefNum*/, long /*dirID*/, unsigned long /*fileType*/, FSSpec** /*list*/) {
    Missing();
}
OSErr FSpDelete(FSSpec const* /*spec*/) {
    Missing();
}
void FSpCreateResFile(FSSpec const* /*spec*/, OSType /*creator*/, OSType /*fileType*/, short /*scriptCode*/) {
    Missing();
}
short FSpOpenResFile(FSSpec const* /*spec*/, signed char /*permission*/) {
    Missing();
}
short CurResFile() {
    Missing();
}
void UseResFile(short /*refNum*/) {
    Missing();
}
void CloseResFile(short /*refNum*/) {
    Missing();
}
void AddResource(Handle /*data*/, OSType /*type*/, short /*id*/, CStr255 const& /*name*/) {
    Missing();
}
Handle GetResource(OSType /*type*/, short /*id*/) {
    Missing();
}
void DetachResource(Handle /*resource*/) {
    Missing();
}

// What only the editor needs of strings and records.
CFAllocatorRef const kCFAllocatorDefault = nullptr;

CFStringRef CFStringCreateWithPascalString(CFAllocatorRef /*allocator*/, unsigned char const* /*bytes*/,
                                           CFStringEncoding /*encoding*/) {
    Missing();
}
CFStringRef CStr255::CreateCopy() const {
    Missing();
}
char const* CPString::c_str() const {
    Missing();
}
unsigned char const* CPString::PascalBytes() const {
    Missing();
}
void CPString::Delete(std::size_t /*first*/, std::size_t /*count*/) {
    Missing();
}
CStr255 GetIndString(short /*listId*/, short /*index*/) {
    Missing();
}
void GetIndString(unsigned char* /*out*/, short /*listId*/, short /*index*/) {
    Missing();
}
void DoubleToStr(double /*value*/, short /*precision*/, CStr255& /*out*/) {
    Missing();
}

void CGradientColor::SetColor(RGBColor const& /*color*/) {
    Missing();
}
void CGradientColor::SetPercent(float /*percent*/) {
    Missing();
}
bool CGradientColor::operator<(CGradientColor const& /*other*/) const {
    Missing();
}
void CGradientData::SetStartRadius(float /*radius*/) {
    Missing();
}
void CGradientData::SetEndRadius(float /*radius*/) {
    Missing();
}
