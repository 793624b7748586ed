// The end of the program where it cannot go on without memory.
#pragma once

namespace easel::commands {

inline constexpr char kNotEnoughMemory[] = "easel: not enough memory\n";

// From now on the program says so on the standard error stream and ends with kFailed where a library ends it
// or breaks down after memory was refused. What breaks down for other reasons does so as ever.
//
// Until there is a reserve (MemoryReserve.h), the program also ends so where memory is refused to a library
// that is known to end it, to ask for ever, or to go on with something missing (LibraryCall.h). Elsewhere
// `new` throws.
void explainLackOfMemory();

} // namespace easel::commands
