// The resource manager: open resource files, which of them is current, and the blocks that were read from
// them.
#pragma once

#include "easel/classic/HostFiles.h"
#include "easel/classic/ResourceFork.h"
#include "easel/runtime/MemoryBlocks.h"

#include <string>
#include <vector>

namespace easel::runtime {

class ResourceFiles {
  public:
    // The number of the host's own file, which is always open, holds no resources and takes none.
    static constexpr std::int16_t kHostFile = 1;
    static constexpr std::int16_t kNoFile = -1;

    // `unwritten` is told what a file that was closed could not be written for, `unreadable` which file was
    // to be opened for reading and is damaged.
    ResourceFiles(classic::HostFiles& files, MemoryBlocks& blocks, classic::HostFiles::ErrorReport unwritten,
                  classic::HostFiles::ErrorReport unreadable);
    ~ResourceFiles();
    ResourceFiles(const ResourceFiles&) = delete;
    ResourceFiles& operator=(const ResourceFiles&) = delete;

    // Opens a file and makes it current. kNoFile where there is none, or one without resources that can be
    // read.
    std::int16_t open(const classic::FileSpec& spec, classic::Access access);
    std::int16_t current() const { return current_; }
    // Changes nothing unless the file is open.
    void use(std::int16_t number);
    // Writes what was added and disposes of the blocks that were not detached. The file opened before it
    // becomes current, if it was current itself.
    void close(std::int16_t number);
    // In the order in which they were opened.
    std::vector<std::int16_t> openFiles() const;

    enum class AdditionError { NotWritable, NotABlock };
    // Adds a copy of the block to the current file. The name is Mac Roman.
    tl::expected<void, AdditionError> add(char** block, std::uint32_t type, std::int16_t id,
                                          const std::string& name);
    // From the current file or those opened before it; null if none has it. The same block for the same
    // resource.
    char** get(std::uint32_t type, std::int16_t id);
    void detach(char** block);

  private:
    struct LoadedBlock {
        std::uint32_t type;
        std::int16_t id;
        char** block;
    };
    struct OpenFile {
        std::int16_t number = kHostFile;
        classic::Access access = classic::Access::Read;
        classic::OpenedFile file;
        classic::ResourceFork fork;
        bool changed = false;
        std::vector<LoadedBlock> loaded;
    };

    std::vector<OpenFile>::iterator find(std::int16_t number);
    char** load(OpenFile& file, std::uint32_t type, std::int16_t id);
    void write(OpenFile& file);
    std::int16_t freeNumber();

    classic::HostFiles& files_;
    MemoryBlocks& blocks_;
    classic::HostFiles::ErrorReport unwritten_;
    classic::HostFiles::ErrorReport unreadable_;
    std::vector<OpenFile> open_;
    std::int16_t current_ = kHostFile;
};

} // namespace easel::runtime
