// Files named by volume, directory and leaf name, and resource files.
//
// Result codes are those of the classic File Manager: 0 done, -43 no such file, other values other failures.
// In names ':' separates directories; every other character, '/' included, is part of a name.
#pragma once

#include "host/Memory.h"
#include "host/Strings.h"
#include "host/TypeCodes.h"

#include <cstdint>

#pragma GCC visibility push(default)

/// A result code.
using OSErr = std::int16_t;

inline constexpr OSErr kNoErr = 0;
inline constexpr OSErr kFileNotFoundErr = -43;

/// A file: volume, id of the directory that holds it and its leaf name as a length-prefixed string of up to
/// 63 bytes. Listings hold these records back to back, hence the fixed layout. It puts `parID` on an address
/// that is no multiple of 4: copy the number, and bind no pointer or reference to it, not even through a
/// function that takes its arguments by reference.
#pragma pack(push, 2)
struct FSSpec {
    std::int16_t vRefNum;
    std::int32_t parID;
    std::uint8_t name[64];
};
#pragma pack(pop)
static_assert(sizeof(FSSpec) == 70, "listings of files are made of 70-byte records");

/// The folder of that name among the host's secondary preferences folders: its volume, the id of the
/// directory that contains it, its name. It is made if it is missing and `create` is true.
[[nodiscard]] FSSpec FindSecondaryPreferencesFolder(CStr255 const& name, bool create);

/// Appends to the block `list`, growing it, one record for each file of that type that lies directly in the
/// directory. The order is the host's: plug-ins show it as it is, and it stays the same as long as the files
/// of the directory do. Null for `list` does nothing.
void EnumerShell(short vRefNum, long dirID, unsigned long fileType, FSSpec** list);

/// Resolves a name, or a partial path that begins with ':', against a directory. -43 if everything but the
/// leaf exists: `out` is filled then too, with the id of the directory that would hold the file. Any other
/// failure leaves `out` as it was.
OSErr FSMakeFSSpec(short vRefNum, long dirID, CStr255 const& name, FSSpec* out);
/// Deletes a file (Easel moves it to the desktop's trash).
OSErr FSpDelete(FSSpec const* spec);
/// Makes a new file with an empty data fork and a resource fork without resources. Does nothing if the file
/// exists.
void FSpCreateResFile(FSSpec const* spec, OSType creator, OSType fileType, short scriptCode);

/// Permissions for FSpOpenResFile.
inline constexpr signed char kReadPermission = 1;
inline constexpr signed char kWritePermission = 2;
/// Opens a file's resource fork, makes it the current resource file and returns its reference number; -1, and
/// no change, if there is no fork that can be read. A plug-in that asks for a resource nevertheless then gets
/// what the files opened before have.
short FSpOpenResFile(FSSpec const* spec, signed char permission);
/// The reference number of the current resource file. There always is one: with no file open it is a number
/// of the host's own that UseResFile accepts and that has no resources.
[[nodiscard]] short CurResFile();
/// Makes an open resource file current; a number that is not that of one changes nothing.
void UseResFile(short refNum);
/// Writes what was added to a resource file and closes it; the resources that were read from it and not
/// detached are disposed of. If it was the current one, the one opened last before it becomes current. A
/// number that is not that of an open file, the host's own included, does nothing.
void CloseResFile(short refNum);

/// Adds a copy of the block to the current resource file, if that is open for writing. The block stays the
/// caller's.
void AddResource(Handle data, OSType type, short id, CStr255 const& name);
/// The resource of that type and id from the current resource file or, failing that, from those opened before
/// it; null if there is none. The block belongs to the file until it is detached.
[[nodiscard]] Handle GetResource(OSType type, short id);
/// Makes a resource's block the caller's, to be disposed of by it. Null is allowed.
void DetachResource(Handle resource);

#pragma GCC visibility pop
