#include "easel/type/Typesetter.h"

#include "easel/files/OwnLibrary.h"
#include "easel/memory/LibraryCall.h"

namespace easel::type {

Typesetter* typesetter() {
    static Typesetter* const kLoaded = memory::complete([] {
        const auto function = files::loadedFrom(EASEL_TYPE_LIBRARY, kTypesetterSymbol);
        return function ? reinterpret_cast<TypesetterFunction>(*function)() : nullptr;
    });
    return kLoaded;
}

} // namespace easel::type
