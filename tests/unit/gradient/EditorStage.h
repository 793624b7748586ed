// The plug-in's own code in a real host, in this process: resources, an empty folder of preferences and a
// user.
#pragma once

#include "easel/runtime/Host.h"
#include "easel/runtime/PluginResourceFile.h"
#include "easel/runtime/Storage.h"
#include "host/Gradient.h"
#include "tests/support/IdleUser.h"
#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>

namespace tests {

class EditorStage {
  public:
    explicit EditorStage(easel::runtime::User& user) {
        easel::runtime::useStorage(easel::classic::StoragePlaces::within(folder_.path()));
        easel::runtime::theHost().user = &user;
        const std::filesystem::path resources = folder_ / "Gradient";
        std::filesystem::copy(std::filesystem::path(SOURCE_DIR) / "Gradient" / "resources", resources);
        const auto opened = easel::runtime::openPluginResources(resources);
        EXPECT_TRUE(opened) << opened.error().message();
    }
    EditorStage(const EditorStage&) = delete;
    EditorStage& operator=(const EditorStage&) = delete;
    ~EditorStage() {
        easel::runtime::closePluginResources();
        easel::runtime::theHost().user = nullptr;
    }

    const std::filesystem::path& folder() const { return folder_.path(); }

  private:
    TemporaryFolder folder_;
};

inline CGradientData gradientOf(std::initializer_list<CGradientColor> stops) {
    CGradientData gradient;
    gradient.ColorList().assign(stops);
    return gradient;
}

} // namespace tests
