// What a program last saw of a file, to tell later whether somebody else has changed it.
#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <string_view>
#include <sys/types.h>

namespace easel::files {

class KnownFile {
  public:
    enum class Fate : std::uint8_t { Same, Changed, Gone };

    // No file, which stays the same.
    KnownFile() = default;
    // Looks at the file as it is now. To be made before the content is read, or after it is written.
    explicit KnownFile(std::filesystem::path file);

    const std::filesystem::path& file() const { return file_; }
    // The content that was read or written.
    void setContent(std::string_view content);
    bool isContent(std::string_view content) const;

    // Whether the content is still that one. Reads it only if the file looks other than before.
    Fate look();
    // The same, and reads the content in any case.
    Fate lookInto();

  private:
    struct Look {
        dev_t device;
        ino_t number;
        off_t size;
        std::int64_t seconds;
        std::int64_t nanoseconds;
        bool operator==(const Look&) const = default;
    };
    static std::optional<Look> lookAt(const std::filesystem::path& file);

    std::filesystem::path file_;
    std::optional<Look> look_;
    std::size_t size_ = 0;
    std::size_t hash_ = 0;
};

// Whether the file is there and is not to be written to: by this user, or by anybody, as somebody has taken
// away the permission from all.
bool isWriteProtected(const std::filesystem::path& file);

} // namespace easel::files
