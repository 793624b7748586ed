// Where the templates lie, as the resources beside a module name the folder.
#include "easel/runtime/TemplateFolder.h"
#include "tests/support/ErrorOf.h"
#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

namespace easel::runtime {
namespace {

class TemplateFolderTest : public testing::Test {
  protected:
    void nameFolder(const std::string& name) const {
        tests::writeContent(folder_ / "Tool" / "Tool.xml",
                            "<resources><strings id='5000'><string>Tool</string><string>" + name +
                                "</string></strings></resources>");
    }
    files::Result<std::filesystem::path> found() const {
        return templateFolder(folder_ / "Tool.so", places_);
    }

    tests::TemporaryFolder folder_;
    classic::StoragePlaces places_ = classic::StoragePlaces::within(folder_.path());
};

TEST_F(TemplateFolderTest, IsTheOneThatTheSecondOfItsTextsNames) {
    nameFolder("Blends");
    const auto folder = found();
    ASSERT_TRUE(folder);
    EXPECT_EQ(*folder, places_.preferences / "Blends");
    EXPECT_FALSE(std::filesystem::exists(*folder));
}

TEST_F(TemplateFolderTest, IsUnknownWithoutResourcesOrAName) {
    EXPECT_FALSE(found());
    nameFolder("");
    EXPECT_EQ(tests::errorOf(found()).reason, "it has no name for the template folder");
}

} // namespace
} // namespace easel::runtime
