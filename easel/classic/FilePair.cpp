// Looking at files of the host on disk.
#include "easel/classic/FilePair.h"

#include "easel/classic/TemplateInfo.h"
#include "easel/files/FileDescriptor.h"
#include "easel/files/WholeFile.h"

#include <algorithm>
#include <cerrno>
#include <sys/stat.h>

namespace easel::classic {
namespace {

// Beyond this nobody has entries; a descriptor that points there is damage.
constexpr std::uint64_t kFarthestInfo = 1U << 20;
constexpr std::uintmax_t kLargestHeader = 64U << 20;

FinderInfo infoOfDamaged(const FilePair& file) {
    return file.name.ends_with(kTemplateEnding) ? kTemplateInfo : FinderInfo{};
}

// The first bytes of the file: as many as wanted, fewer where it ends.
files::Bytes readBeginning(const files::FileDescriptor& open, std::size_t wanted) {
    files::Bytes bytes(wanted);
    std::size_t filled = 0;
    while (filled < wanted) {
        const auto got =
            ::pread(open.number(), bytes.data() + filled, wanted - filled, static_cast<off_t>(filled));
        if (got < 0 && errno == EINTR)
            continue;
        if (got <= 0)
            break;
        filled += static_cast<std::size_t>(got);
    }
    bytes.resize(filled);
    return bytes;
}

} // namespace

bool exists(const FilePair& file) {
    struct stat status {};
    return ::stat(file.data().c_str(), &status) == 0 && S_ISREG(status.st_mode);
}

files::Result<AppleDouble> readHeader(const FilePair& file) {
    const auto bytes = files::readWholeFile(file.header(), kLargestHeader);
    if (!bytes) {
        if (bytes.error().code == std::errc::no_such_file_or_directory)
            return AppleDouble();
        return tl::unexpected(bytes.error());
    }
    return AppleDouble::read(*bytes).map_error([&](HeaderDamage damage) {
        return files::Error{file.header(), describe(damage), {}};
    });
}

FinderInfo readFinderInfo(const FilePair& file) {
    using Answer = FinderInfoPlace::Answer;
    constexpr std::size_t kUsuallyEnough = 256;
    const files::FileDescriptor open(::open(file.header().c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
    if (!open)
        return {};
    std::size_t size = kUsuallyEnough;
    // The table of entries may end beyond the first bytes, and the information beyond that.
    for (int reads = 0; reads < 3; ++reads) {
        const auto beginning = readBeginning(open, size);
        const auto place = findFinderInfo(beginning);
        if (place.answer == Answer::Here)
            return place.info;
        if (place.answer == Answer::None)
            return {};
        const bool isCutShort = beginning.size() < size;
        if (place.answer == Answer::NotAppleDouble || isCutShort || place.needed > kFarthestInfo)
            return infoOfDamaged(file);
        size = static_cast<std::size_t>(place.needed);
    }
    return infoOfDamaged(file);
}

} // namespace easel::classic
