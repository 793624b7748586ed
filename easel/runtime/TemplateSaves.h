// Whether templates were saved since some moment.
#pragma once

#include <filesystem>

namespace easel::runtime {

// Remembers how the folder of templates is now.
class TemplateSaves {
  public:
    // The folder need not be there.
    explicit TemplateSaves(std::filesystem::path folder);

    // Whether a file was written there since; one that was deleted does not count.
    bool any() const;

  private:
    std::filesystem::path folder_;
    std::filesystem::file_time_type changed_;
};

} // namespace easel::runtime
