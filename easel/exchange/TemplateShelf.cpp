// Listing, loading, saving and removing templates by name.
#include "easel/exchange/TemplateShelf.h"

#include "easel/classic/HostNames.h"
#include "easel/classic/MacRoman.h"
#include "easel/classic/PairCommit.h"
#include "easel/classic/TemplateInfo.h"
#include "easel/exchange/TemplateFile.h"

namespace fs = std::filesystem;

namespace easel::exchange {
namespace {

using classic::FilePair;
using files::Error;
using files::Result;

std::string describe(const classic::EncodingError& error) {
    return error.kind == classic::EncodingError::Kind::NotUtf8
               ? "the name is not UTF-8"
               : "the host's encoding has no character " + error.culprit;
}

} // namespace

std::string withoutEnding(const std::string& name) {
    const std::string_view ending = classic::kTemplateEnding;
    return name.size() > ending.size() && name.ends_with(ending) ? name.substr(0, name.size() - ending.size())
                                                                 : name;
}

std::vector<std::string> TemplateShelf::names() const {
    std::vector<std::string> names;
    for (const auto& file : classic::listFolder(folder_).files)
        if (file.info.type == classic::kTemplateInfo.type)
            names.push_back(withoutEnding(classic::fromMacRoman(file.hostName)));
    return names;
}

Result<CGradientData> TemplateShelf::load(const std::string& name) const {
    return find(name).and_then(readTemplate);
}

Result<TemplateShelf::Saved> TemplateShelf::save(const std::string& name,
                                                 const CGradientData& gradient) const {
    if (withoutEnding(name).empty())
        return tl::unexpected(Error{"\"\"", "a template's name cannot be empty", {}});
    const auto encoded = classic::toMacRoman(withoutEnding(name) + classic::kTemplateEnding);
    if (!encoded)
        return tl::unexpected(Error{name, describe(encoded.error()), {}});
    const auto disk = classic::nameOnDisk(*encoded);
    if (!disk)
        return tl::unexpected(
            Error{name,
                  "it cannot be the name of a template: at most 59 characters, no ':' and no '._' in front",
                  {}});
    const auto header = templateHeader(gradient);
    if (!header)
        return tl::unexpected(Error{name, "a gradient without colors cannot be kept", {}});
    std::error_code error;
    fs::create_directories(folder_, error);
    if (error)
        return tl::unexpected(Error{folder_, error.message(), error});
    classic::recoverFolder(folder_);
    const FilePair file{folder_, *disk};
    const auto saved = classic::exists(file) ? Saved::Replaced : Saved::New;
    return classic::writePair(file, *header, trash_).map([saved] { return saved; });
}

files::Result<> TemplateShelf::remove(const std::string& name) const {
    return find(name).and_then([this](const FilePair& file) { return classic::trashPair(file, trash_); });
}

Result<FilePair> TemplateShelf::find(const std::string& name) const {
    const auto files = classic::listFolder(folder_).files;
    for (const auto& wanted : {name, withoutEnding(name) + classic::kTemplateEnding}) {
        // Composed or decomposed, a name is the same in the host's encoding.
        const auto encoded = classic::toMacRoman(wanted);
        if (!encoded)
            continue;
        for (const auto& file : files)
            if (file.info.type == classic::kTemplateInfo.type && file.hostName == *encoded)
                return file.file;
    }
    return tl::unexpected(Error{name, "there is no template of that name in " + folder_.string(),
                                std::make_error_code(std::errc::no_such_file_or_directory)});
}

} // namespace easel::exchange
