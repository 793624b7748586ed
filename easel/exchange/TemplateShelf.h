// The templates of a user, as a program without the plug-in looks at them.
#pragma once

#include "easel/classic/FolderListing.h"
#include "easel/files/Trash.h"
#include "host/Gradient.h"

#include <string>
#include <vector>

namespace easel::exchange {

// Names are UTF-8 and may go without the ".GRD" that files have.
class TemplateShelf {
  public:
    TemplateShelf(std::filesystem::path folder, std::filesystem::path trash)
        : folder_(std::move(folder)), trash_(std::move(trash)) {}

    const std::filesystem::path& folder() const { return folder_; }
    const files::Trash& trash() const { return trash_; }

    // The names of the templates, without ".GRD", in the order of the popup.
    std::vector<std::string> names() const;
    files::Result<CGradientData> load(const std::string& name) const;
    // Whether a template was in the way, which now lies in the trash.
    enum class Saved { New, Replaced };
    files::Result<Saved> save(const std::string& name, const CGradientData& gradient) const;
    // Moves it to the trash.
    [[nodiscard]] files::Result<> remove(const std::string& name) const;

  private:
    files::Result<classic::FilePair> find(const std::string& name) const;

    std::filesystem::path folder_;
    files::Trash trash_;
};

// The name without the ending of template files.
std::string withoutEnding(const std::string& name);

} // namespace easel::exchange
