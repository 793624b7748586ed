// The kept listing against the folder read anew, while somebody changes the folder by hand.
#include "easel/classic/ListingCache.h"
#include "tests/unit/classic/PairFixture.h"

#include <gmock/gmock.h>
#include <random>
#include <thread>

using namespace easel::classic;
using namespace easel::files;
using tests::dropFile;
using tests::writeContent;
namespace fs = std::filesystem;

namespace {

using Line = std::pair<std::string, std::uint32_t>;

std::vector<Line> linesOf(const std::vector<ListedFile>& files) {
    std::vector<Line> lines;
    lines.reserve(files.size());
    for (const auto& file : files)
        lines.emplace_back(file.hostName + " is " + file.file.name, file.info.type);
    return lines;
}

class ListingCacheTest : public testing::Test {
  protected:
    ListingCacheTest() { fs::create_directory(folder()); }

    fs::path folder() const { return base_ / "folder"; }
    void expectUpToDate() {
        EXPECT_THAT(linesOf(cache_.list(folder())),
                    testing::ElementsAreArray(linesOf(listFolder(folder()).files)));
    }

    tests::TemporaryFolder base_;
    ListingCache cache_;
};

TEST_F(ListingCacheTest, IsWhatTheFolderHoldsWhateverIsDoneToIt) {
    std::mt19937 random(20'261);
    const auto below = [&](std::size_t limit) { return random() % limit; };
    const std::vector<std::string> names{"a.GRD",          "A.GRD", "b",     "caf\u00E9.GRD",
                                         "cafe\u0301.GRD", "._x",   "\u4E2D"};
    for (int step = 0; step < 600; ++step) {
        const auto& name = names[below(names.size())];
        const auto file = folder() / name;
        const auto header = folder() / ("._" + name);
        std::error_code ignored;
        switch (below(8)) {
        case 0:
        case 1:
            dropFile(folder(), name, "x");
            break;
        case 2:
            dropFile(folder(), name, "x", fourCharacters("TEXT"));
            break;
        case 3:
            fs::remove(file, ignored);
            break;
        case 4:
            fs::remove(header, ignored);
            break;
        case 5:
            fs::rename(file, folder() / names[below(names.size())], ignored);
            break;
        case 6:
            fs::rename(header, folder() / ("._" + names[below(names.size())]), ignored);
            break;
        default:
            writeContent(header, "damaged");
            break;
        }
        SCOPED_TRACE("step " + std::to_string(step));
        expectUpToDate();
    }
}

TEST_F(ListingCacheTest, ShowsManyChangesAtOnce) {
    expectUpToDate();
    for (int i = 0; i < 300; ++i)
        dropFile(folder(), std::to_string(i), "x");
    expectUpToDate();
    EXPECT_EQ(cache_.list(folder()).size(), 300U);
}

TEST_F(ListingCacheTest, SeesWhatALinkLeadsToASecondLaterAtTheLatest) {
    fs::create_symlink(base_ / "elsewhere", folder() / "link");
    expectUpToDate();
    writeContent(base_ / "elsewhere", "");
    std::this_thread::sleep_for(std::chrono::milliseconds(1050));
    expectUpToDate();
    EXPECT_EQ(cache_.list(folder()).size(), 1U);
}

TEST_F(ListingCacheTest, SeesALinkThatWasMadeLaterAndWhatItLeadsTo) {
    expectUpToDate();
    fs::create_symlink(base_ / "elsewhere", folder() / "link");
    expectUpToDate();
    writeContent(base_ / "elsewhere", "");
    std::this_thread::sleep_for(std::chrono::milliseconds(1050));
    EXPECT_EQ(cache_.list(folder()).size(), 1U);
}

TEST_F(ListingCacheTest, IsNotReadAgainAsLongAsNothingChanges) {
    dropFile(folder(), "a", "x");
    expectUpToDate();
    const auto before = cache_.revision();
    std::this_thread::sleep_for(std::chrono::milliseconds(1050));
    expectUpToDate();
    EXPECT_EQ(cache_.revision(), before) << "however long ago it was read";
}

TEST_F(ListingCacheTest, ReadInTheBackgroundIsWhatTheFolderHoldsWhenItIsAskedFor) {
    for (int i = 0; i < 200; ++i)
        dropFile(folder(), std::to_string(i), "x");
    cache_.prepare(folder());
    dropFile(folder(), "late", "x");
    fs::remove(folder() / "7");
    expectUpToDate();
    cache_.prepare(folder());
    EXPECT_TRUE(cache_.list(base_ / "no folder").empty()) << "another folder is asked for instead";
    expectUpToDate();
}

TEST_F(ListingCacheTest, FollowsThePathWhenAnotherFolderIsPutThere) {
    dropFile(folder(), "old", "x");
    expectUpToDate();
    fs::rename(folder(), base_ / "moved");
    EXPECT_TRUE(cache_.list(folder()).empty());
    dropFile(folder(), "new", "x");
    expectUpToDate();
    fs::create_directory(base_ / "third");
    fs::rename(folder(), base_ / "moved again");
    fs::rename(base_ / "third", folder());
    expectUpToDate();
    dropFile(base_ / "moved", "elsewhere", "x");
    expectUpToDate();
}

TEST_F(ListingCacheTest, HasAnotherRevisionAfterAChangeAndTheSameWithoutOne) {
    dropFile(folder(), "a", "x");
    cache_.list(folder());
    const auto before = cache_.revision();
    cache_.list(folder());
    EXPECT_EQ(cache_.revision(), before);
    fs::remove(folder() / "a");
    cache_.list(folder());
    EXPECT_NE(cache_.revision(), before);
}

} // namespace
