// A program that may have only so much memory: what does not fit into it is refused, and all else stays.
#include "tests/desktop/DesktopTest.h"

#include <gmock/gmock.h>
#include <sys/resource.h>

#include <algorithm>
#include <fstream>

namespace desktop {
namespace {

using testing::AllOf;
using testing::HasSubstr;

class MemoryTest : public DesktopTest {
  protected:
    // Writes the test's drawing with rows of a thousand small squares behind its shapes. Reading takes little
    // more memory than the squares, as all rows but one repeat it.
    void writeRows(const std::filesystem::path& file, int rows) {
        std::string squares = "<g id='row' fill='url(#l)'>";
        for (int i = 0; i < 1000; ++i)
            squares += "<path d='M" + std::to_string(300 + i / 5) + ",20h3v3h-3z'/>";
        squares += "</g>\n";
        for (int i = 1; i < rows; ++i)
            squares += "<use href='#row' y='" + std::to_string(i % 100) + "'/>\n";
        std::string svg = contents(drawing());
        svg.insert(svg.find("</defs>") + 7, squares);
        std::ofstream(file) << svg;
    }
    // The program may have so many megabytes more than it has now.
    void leave(std::uint64_t megabytes) { setLimit((pagesOfProgram() << 12) + (megabytes << 20)); }
    void giveBack() { setLimit(RLIM_INFINITY); }
    void reverseAll() {
        getsKeyboard("drawing.svg");
        screen().key("ctrl+a");
        screen().key("ctrl+shift+r");
    }

  private:
    std::uint64_t pagesOfProgram() {
        std::uint64_t pages = 0;
        std::ifstream("/proc/" + std::to_string(program().id()) + "/statm") >> pages;
        return pages;
    }
    void setLimit(std::uint64_t bytes) {
        // The hard limit stays, since not everybody may raise it.
        rlimit limit{};
        ASSERT_EQ(prlimit(program().id(), RLIMIT_AS, nullptr, &limit), 0);
        limit.rlim_cur = std::min<std::uint64_t>(bytes, limit.rlim_max);
        ASSERT_EQ(prlimit(program().id(), RLIMIT_AS, &limit, nullptr), 0);
    }
};

TEST_F(MemoryTest, ADrawingThatIsTooLargeIsRefusedByNameAndTheOneThatIsOpenStays) {
    const std::filesystem::path large = folder() / "large.svg";
    const std::string before = contents(drawing());
    writeRows(large, 500);
    startWithDrawing();
    reverseAll();
    waitForWindow("drawing.svg*");
    leave(100);
    screen().key("ctrl+o");
    answerFileDialog("Open", large);
    EXPECT_THAT(messageOf(waitForDialog("Easel")), AllOf(HasSubstr(large.string()), HasSubstr("memory")));
    screen().key("Escape");
    EXPECT_TRUE(vanishes("Easel"));
    EXPECT_NE(saved(), before) << "the change is still there, and is saved";
    EXPECT_TRUE(vanishes("drawing.svg*"));
    EXPECT_EQ(quit(), 0);
}

TEST_F(MemoryTest, AChangeThatFindsNoMemoryIsGivenUpAndAllBeforeItCanBeUndone) {
    constexpr int kMoreThanFits = 20;
    writeRows(drawing(), 60);
    startWithDrawing();
    leave(30);
    reverseAll();
    for (int i = 0; i < kMoreThanFits; ++i)
        screen().key("ctrl+shift+r");
    EXPECT_THAT(messageOf(waitForDialog("Easel")), HasSubstr("drawing.svg: there is not enough memory"));
    screen().key("Escape");
    EXPECT_TRUE(vanishes("Easel"));
    giveBack();
    getsKeyboard("drawing.svg");
    for (int i = 0; i < kMoreThanFits; ++i)
        screen().key("ctrl+z");
    EXPECT_TRUE(vanishes("drawing.svg*"));
    reverseAll();
    waitForWindow("drawing.svg*");
    screen().key("ctrl+z");
    EXPECT_TRUE(vanishes("drawing.svg*"));
    EXPECT_EQ(quit(), 0);
}

} // namespace
} // namespace desktop
