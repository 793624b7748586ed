// Listing, loading, saving and removing templates by name.
#include "easel/exchange/TemplateShelf.h"

#include "easel/classic/HostNames.h"
#include "easel/classic/MacRoman.h"
#include "easel/classic/PairCommit.h"
#include "easel/exchange/TemplateFile.h"

namespace fs = std::filesystem;

namespace easel::exchange {
namespace {

using classic::FilePair;
using files::FileError;
using files::OrFileError;

constexpr const char* kEnding = ".GRD";

} // namespace

std::string withoutEnding(const std::string& name) {
    const std::string_view ending = kEnding;
    return name.size() > ending.size() && name.ends_with(ending) ? name.substr(0, name.size() - ending.size())
                                                                 : name;
}

std::vector<std::string> TemplateShelf::names() const {
    std::vector<std::string> names;
    for (const auto& file : classic::listFolder(folder_).files)
        if (file.info.type == kTemplateType)
            names.push_back(withoutEnding(classic::fromMacRoman(file.hostName)));
    return names;
}

OrFileError<CGradientData> TemplateShelf::load(const std::string& name) const {
    const auto file = find(name);
    if (const auto* const error = std::get_if<FileError>(&file))
        return *error;
    return readTemplate(std::get<FilePair>(file));
}

OrFileError<TemplateShelf::Saved> TemplateShelf::save(const std::string& name,
                                                      const CGradientData& gradient) const {
    if (withoutEnding(name).empty())
        return FileError{R"("")", "a template's name cannot be empty", {}};
    const auto encoded = classic::toMacRoman(withoutEnding(name) + kEnding);
    if (encoded.outcome == classic::EncodingOutcome::NotUtf8)
        return FileError{name, "the name is not UTF-8", {}};
    if (encoded.outcome == classic::EncodingOutcome::NotInEncoding)
        return FileError{name, "the host's encoding has no character " + encoded.culprit, {}};
    const auto disk = classic::nameOnDisk(encoded.text);
    if (!disk)
        return FileError{
            name,
            "it cannot be the name of a template: at most 59 characters, no ':' and no '._' in front",
            {}};
    const auto header = templateHeader(gradient);
    if (!header)
        return FileError{name, "a gradient without colors cannot be kept", {}};
    std::error_code error;
    fs::create_directories(folder_, error);
    if (error)
        return FileError{folder_, error.message(), error};
    classic::recoverFolder(folder_);
    const FilePair file{folder_, *disk};
    const auto saved = classic::exists(file) ? Saved::Replaced : Saved::New;
    if (const auto failure = classic::writePair(file, *header, trash_))
        return *failure;
    return saved;
}

files::FileOutcome TemplateShelf::remove(const std::string& name) const {
    const auto file = find(name);
    if (const auto* const error = std::get_if<FileError>(&file))
        return *error;
    return classic::trashPair(std::get<FilePair>(file), trash_);
}

OrFileError<FilePair> TemplateShelf::find(const std::string& name) const {
    const auto files = classic::listFolder(folder_).files;
    for (const auto& wanted : {name, withoutEnding(name) + kEnding}) {
        // Composed or decomposed, a name is the same in the host's encoding.
        const auto encoded = classic::toMacRoman(wanted);
        if (encoded.outcome != classic::EncodingOutcome::Converted)
            continue;
        for (const auto& file : files)
            if (file.info.type == kTemplateType && file.hostName == encoded.text)
                return file.file;
    }
    return FileError{name, "there is no template of that name in " + folder_.string(),
                     std::make_error_code(std::errc::no_such_file_or_directory)};
}

} // namespace easel::exchange
