// What files on disk rely on in host/TypeCodes.h.
#include "host/TypeCodes.h"

#include "easel/classic/BigEndian.h"

using easel::classic::fourCharacters;

// A code is four bytes in a file, the first character first, as numbers are stored there.
static_assert(sizeof(OSType) == 4);
static_assert(FourCC("GRDT") == 0x47524454);
static_assert(FourCC("\1\2\3\4") == 0x01020304);

// The rooms below the interface spell the codes of files in a way of their own: what a plug-in writes under a
// code has to be found under the same one there, also for characters beyond ASCII and the blank.
static_assert(FourCC("GRDT") == fourCharacters("GRDT"));
static_assert(FourCC("*a \xa5") == fourCharacters("*a \xa5"));
