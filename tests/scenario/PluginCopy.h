// The plug-in with resources of a test's own.
#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

namespace tests {

class PluginCopy {
  public:
    // Copies the module and its resources into the folder.
    explicit PluginCopy(const std::filesystem::path& folder) : module_(folder / "Copy.so") {
        const std::filesystem::path original = GRADIENT_MODULE;
        std::filesystem::copy(original, module_);
        std::filesystem::copy(original.parent_path() / original.stem(), folder / "Copy",
                              std::filesystem::copy_options::recursive);
        std::filesystem::rename(folder / "Copy" / (original.stem().string() + ".xml"), resources());
    }

    const std::filesystem::path& module() const { return module_; }
    std::filesystem::path resources() const { return module_.parent_path() / "Copy" / "Copy.xml"; }

    // Replaces the one place where the text is; fails the test if there is none.
    void replaceInResources(const std::string& text, const std::string& by) const {
        std::stringstream content;
        content << std::ifstream(resources()).rdbuf();
        std::string xml = content.str();
        const std::size_t at = xml.find(text);
        ASSERT_NE(at, std::string::npos) << text;
        xml.replace(at, text.size(), by);
        std::ofstream(resources()) << xml;
    }

  private:
    std::filesystem::path module_;
};

} // namespace tests
