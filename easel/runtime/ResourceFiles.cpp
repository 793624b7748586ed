// The chain of open resource files.
#include "easel/runtime/ResourceFiles.h"

#include <algorithm>

namespace easel::runtime {

ResourceFiles::ResourceFiles(classic::HostFiles& files, MemoryBlocks& blocks,
                             classic::HostFiles::ErrorReport unwritten,
                             classic::HostFiles::ErrorReport unreadable)
    : files_(files), blocks_(blocks), unwritten_(std::move(unwritten)), unreadable_(std::move(unreadable)),
      open_(1) {}

ResourceFiles::~ResourceFiles() {
    while (open_.size() > 1)
        close(open_.back().number);
}

std::int16_t ResourceFiles::open(const classic::FileSpec& spec, classic::Access access) {
    OpenFile file;
    file.access = access;
    auto opened = files_.open(spec, access);
    if (!opened) {
        // An error of the system means that there is nothing to see; one without, that what was seen is
        // damaged.
        if (!opened.error().code && access == classic::Access::Read)
            unreadable_(opened.error());
        return kNoFile;
    }
    file.file = std::move(*opened);
    file.changed = file.file.state == classic::OpenedFile::State::Waiting;
    auto fork = classic::ResourceFork::read(file.file.header.resourceFork());
    if (!fork) {
        if (access == classic::Access::Read)
            unreadable_({file.file.file.data(), "its resources are damaged", {}});
        return kNoFile;
    }
    file.fork = std::move(*fork);
    file.number = freeNumber();
    open_.push_back(std::move(file));
    current_ = open_.back().number;
    return current_;
}

void ResourceFiles::use(std::int16_t number) {
    if (find(number) != open_.end())
        current_ = number;
}

void ResourceFiles::close(std::int16_t number) {
    const auto file = find(number);
    if (number == kHostFile || file == open_.end())
        return;
    if (file->changed)
        write(*file);
    for (const auto& loaded : file->loaded)
        blocks_.dispose(loaded.block);
    if (current_ == number)
        current_ = std::prev(file)->number;
    open_.erase(file);
}

std::vector<std::int16_t> ResourceFiles::openFiles() const {
    std::vector<std::int16_t> numbers;
    for (const auto& file : open_)
        numbers.push_back(file.number);
    return numbers;
}

tl::expected<void, ResourceFiles::AdditionError>
ResourceFiles::add(char** block, std::uint32_t type, std::int16_t id, const std::string& name) {
    const auto file = find(current_);
    if (file->access != classic::Access::Write)
        return tl::unexpected(AdditionError::NotWritable);
    const auto size = blocks_.size(block);
    if (!size)
        return tl::unexpected(AdditionError::NotABlock);
    file->fork.put({type, id, 0, name, files::Bytes(*block, *block + *size)});
    file->changed = true;
    return {};
}

char** ResourceFiles::get(std::uint32_t type, std::int16_t id) {
    // The current file is always open, and the host's own, the first, has nothing.
    for (auto file = find(current_); file != open_.begin(); --file)
        if (char** const block = load(*file, type, id))
            return block;
    return nullptr;
}

void ResourceFiles::detach(char** block) {
    for (auto& file : open_)
        std::erase_if(file.loaded, [&](const LoadedBlock& loaded) { return loaded.block == block; });
}

std::vector<ResourceFiles::OpenFile>::iterator ResourceFiles::find(std::int16_t number) {
    return std::find_if(open_.begin(), open_.end(),
                        [&](const OpenFile& file) { return file.number == number; });
}

char** ResourceFiles::load(OpenFile& file, std::uint32_t type, std::int16_t id) {
    for (const auto& loaded : file.loaded)
        if (loaded.type == type && loaded.id == id)
            return loaded.block;
    const auto* const resource = file.fork.find(type, id);
    if (!resource)
        return nullptr;
    char** const block = blocks_.create(resource->data.size());
    if (!block)
        return nullptr;
    std::copy(resource->data.begin(), resource->data.end(), *block);
    file.loaded.push_back({type, id, block});
    return block;
}

void ResourceFiles::write(OpenFile& file) {
    auto fork = file.fork.write();
    if (!fork) {
        unwritten_({file.file.file.data(), "its resources are larger than a resource file can be", {}});
        return;
    }
    file.file.header.setResourceFork(std::move(*fork));
    if (const auto written = files_.write(file.file); !written)
        unwritten_(written.error());
}

std::int16_t ResourceFiles::freeNumber() {
    std::int16_t number = kHostFile + 1;
    while (find(number) != open_.end())
        ++number;
    return number;
}

} // namespace easel::runtime
