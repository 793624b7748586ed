#include "easel/type/Typesetter.h"

#include <dlfcn.h>

namespace easel::type {

namespace {

Typesetter* loadTypesetter() {
    // It lies beside the library that this is part of, which is where the run path of that points to.
    void* const library = dlopen("libeaseltype.so", RTLD_NOW | RTLD_LOCAL);
    void* const symbol = library ? dlsym(library, kTypesetterSymbol) : nullptr;
    return symbol ? reinterpret_cast<TypesetterFunction>(symbol)() : nullptr;
}

} // namespace

Typesetter* typesetter() {
    static Typesetter* const kLoaded = loadTypesetter();
    return kLoaded;
}

} // namespace easel::type
