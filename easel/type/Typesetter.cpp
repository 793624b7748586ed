#include "easel/type/Typesetter.h"

#include "easel/files/ProgramFolders.h"

#include <dlfcn.h>

#include <filesystem>

namespace easel::type {

namespace {

Typesetter* loadTypesetter() {
    const std::filesystem::path file = files::ownLibrary(EASEL_TYPE_LIBRARY);
    void* const library = dlopen(file.c_str(), RTLD_NOW | RTLD_LOCAL);
    void* const symbol = library ? dlsym(library, kTypesetterSymbol) : nullptr;
    return symbol ? reinterpret_cast<TypesetterFunction>(symbol)() : nullptr;
}

} // namespace

Typesetter* typesetter() {
    static Typesetter* const kLoaded = loadTypesetter();
    return kLoaded;
}

} // namespace easel::type
