#include "easel/pictures/PixelLoader.h"

#include "easel/files/OwnLibrary.h"
#include "easel/memory/LibraryCall.h"

namespace easel::pictures {

PixelLoader* pixelLoader() {
    static PixelLoader* const kLoaded = memory::complete([] {
        const auto function = files::loadedFrom(EASEL_PICTURES_LIBRARY, kPixelLoaderSymbol);
        return function ? reinterpret_cast<PixelLoaderFunction>(*function)() : nullptr;
    });
    return kLoaded;
}

} // namespace easel::pictures
