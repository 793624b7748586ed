// The plug-in's own code in a real host, in this process: resources, an empty folder of preferences and a
// user.
#pragma once

#include "easel/runtime/Process.h"
#include "host/Gradient.h"
#include "tests/support/IdleUser.h"
#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>

namespace tests {

class EditorStage {
  public:
    explicit EditorStage(easel::runtime::User& user) : inFront_(process_, user) {
        const std::filesystem::path resources = folder_ / "Gradient";
        std::filesystem::copy(std::filesystem::path(SOURCE_DIR) / "Gradient" / "resources", resources);
        const auto opened = process_.plugin().open(resources);
        EXPECT_TRUE(opened) << opened.error().message();
    }
    EditorStage(const EditorStage&) = delete;
    EditorStage& operator=(const EditorStage&) = delete;

    easel::runtime::Process& process() { return process_; }
    const std::filesystem::path& folder() const { return folder_.path(); }

  private:
    TemporaryFolder folder_;
    easel::runtime::Process process_{easel::classic::StoragePlaces::within(folder_.path())};
    easel::runtime::UserScope inFront_;
};

inline CGradientData gradientOf(std::initializer_list<CGradientColor> stops) {
    CGradientData gradient;
    gradient.ColorList().assign(stops);
    return gradient;
}

} // namespace tests
