#include "easel/files/OwnLibrary.h"

#include "easel/files/ProgramFolders.h"

#include <dlfcn.h>

namespace easel::files {

Result<void*> loadedFrom(const std::string& library, const char* symbol) {
    const std::filesystem::path file = ownLibrary(library);
    void* const handle = dlopen(file.c_str(), RTLD_NOW | RTLD_LOCAL);
    void* const address = handle ? dlsym(handle, symbol) : nullptr;
    if (!address)
        return tl::unexpected(Error{file, dlerror(), {}});
    return address;
}

} // namespace easel::files
