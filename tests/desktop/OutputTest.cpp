// Exporting and printing from the menu.
#include "tests/desktop/DesktopTest.h"

#include <gmock/gmock.h>
#include <pugixml.hpp>

#include <fstream>

namespace desktop {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

namespace fs = std::filesystem;

class OutputTest : public DesktopTest {
  protected:
    fs::path in(const char* name) const { return folder() / name; }
    void exportAs(const std::string& key, const std::string& title, const fs::path& file) {
        // The file of an export before is there a little before the window hears keys again. Escape closes a
        // menu that heard only some.
        EXPECT_TRUE(eventually([&] {
            screen().key("Escape");
            chooseInMenu({"alt+f", "e", key});
            return eventually([&] { return hasWindow("Export as " + title); }, 1s);
        }));
        answerFileDialog("Export as " + title, file);
    }
    // As many keys as it takes to change the size, and Return.
    void answerSize(const std::vector<std::string>& keys = {}) {
        waitForDialog("Picture Size");
        for (const std::string& key : keys)
            screen().key(key);
        screen().key("Return");
        EXPECT_TRUE(vanishes("Picture Size"));
    }
    // Width and height as the header tells them.
    std::vector<int> sizeOf(const std::string& png) const {
        const auto number = [&](std::size_t at) {
            int value = 0;
            for (std::size_t i = at; i < at + 4; ++i)
                value = value * 256 + static_cast<unsigned char>(png.at(i));
            return value;
        };
        return {number(16), number(20)};
    }
    // Files are moved into place whole, so what is there is complete.
    std::string written(const fs::path& file) const {
        EXPECT_TRUE(eventually([&] { return fs::exists(file); })) << file;
        return contents(file);
    }
};

TEST_F(OutputTest, ADrawingIsExportedInThreeFormatsWithTheirEndings) {
    startWithDrawing();
    exportAs("p", "PNG", in("picture"));
    answerSize();
    const std::string png = written(in("picture.png"));
    ASSERT_GT(png.size(), 24U);
    EXPECT_EQ(png.substr(0, 8), "\x89PNG\r\n\x1a\n");
    EXPECT_THAT(sizeOf(png), ElementsAre(600, 400));

    exportAs("d", "PDF", in("page"));
    const std::string pdf = written(in("page.pdf"));
    EXPECT_THAT(pdf, StartsWith("%PDF-"));
    EXPECT_THAT(pdf, HasSubstr("%%EOF"));
    EXPECT_THAT(pdf, HasSubstr("/ShadingType 3"));

    exportAs("s", "SVG", in("copy"));
    pugi::xml_document svg;
    EXPECT_TRUE(svg.load_string(written(in("copy.svg")).c_str()));
    EXPECT_TRUE(svg.select_node("//linearGradient"));
    EXPECT_EQ(quit(), 0) << "an export changes nothing in the drawing";
}

TEST_F(OutputTest, ThePixelsOfAPictureAreAskedForAndKept) {
    startWithDrawing();
    exportAs("p", "PNG", in("wide"));
    // The width is selected, and the height follows.
    answerSize({"9", "0", "0"});
    EXPECT_THAT(sizeOf(written(in("wide.png"))), ElementsAre(900, 600));
    exportAs("p", "PNG", in("again"));
    answerSize();
    EXPECT_THAT(sizeOf(written(in("again.png"))), ElementsAre(900, 600));
    // Two pixels for each of the drawing's units, of which 96 make an inch.
    exportAs("p", "PNG", in("fine"));
    answerSize({"alt+r", "1", "9", "2"});
    EXPECT_THAT(sizeOf(written(in("fine.png"))), ElementsAre(1200, 800));
}

TEST_F(OutputTest, AnEndingThatIsNoneIsFollowedByTheFormatsOwnAndReplacingIsAsked) {
    std::ofstream(in("version1.2.png")) << "before";
    startWithDrawing();
    exportAs("p", "PNG", in("version1.2"));
    waitForDialog("Easel");
    screen().key("Escape");
    EXPECT_TRUE(vanishes("Easel"));
    EXPECT_EQ(contents(in("version1.2.png")), "before");
    exportAs("p", "PNG", in("version1.2"));
    waitForDialog("Easel");
    screen().key("Return");
    EXPECT_TRUE(vanishes("Easel"));
    EXPECT_EQ(contents(in("version1.2.png")), "before") << "Return is the harmless answer";
    exportAs("p", "PNG", in("version1.2"));
    waitForDialog("Easel");
    screen().key("Tab");
    screen().key("space");
    answerSize();
    EXPECT_TRUE(eventually([&] { return contents(in("version1.2.png")).starts_with("\x89PNG"); }));
    EXPECT_FALSE(fs::exists(in("version1.2")));
}

TEST_F(OutputTest, AnExportDoesNotTakeThePlaceOfTheDrawingsOwnFile) {
    startWithDrawing();
    const std::string before = contents(drawing());
    exportAs("s", "SVG", drawing());
    // The file dialog's own question.
    EXPECT_TRUE(eventually([&] { return windowsWith("Export as SVG") == 2; }));
    screen().key("alt+y");
    EXPECT_THAT(messageOf(waitForDialog("Easel")), HasSubstr("drawing.svg: this is the drawing itself"));
    screen().key("Escape");
    EXPECT_TRUE(vanishes("Easel"));
    EXPECT_EQ(contents(drawing()), before);
}

TEST_F(OutputTest, AnExportThatFailsNamesFileAndReason) {
    // A link to itself cannot be written by anybody.
    fs::create_symlink(in("nowhere.pdf"), in("nowhere.pdf"));
    startWithDrawing();
    exportAs("d", "PDF", in("nowhere.pdf"));
    EXPECT_THAT(messageOf(waitForDialog("Easel")), HasSubstr("nowhere.pdf: "));
}

TEST_F(OutputTest, ALongExportShowsItsProgressAndIsCancelledWithoutATrace) {
    // Read in little time, but it takes long to write as a page on the fastest machine too.
    {
        std::ofstream svg(drawing());
        svg << R"(<svg xmlns="http://www.w3.org/2000/svg" width="600" height="400"><defs><linearGradient id="l">)"
            << R"(<stop stop-color="#203080"/><stop offset="1" stop-color="#f0d060"/></linearGradient></defs>)";
        for (int i = 0; i < 250'000; ++i)
            svg << "<path fill='url(#l)' d='M" << i % 600 << ' ' << i / 600 << "h9v9z'/>";
        svg << "<circle cx='500' cy='300' r='50' fill='#c832fa'/></svg>";
    }
    start({drawing().string()});
    waitForColor(kMarker); // the window is there before its drawing
    const auto files = [&] { return std::distance(fs::directory_iterator(folder()), {}); };
    const auto before = files();
    exportAs("d", "PDF", in("long.pdf"));
    waitForMovingProgress();
    screen().key("Escape");
    EXPECT_TRUE(vanishes("Easel"));
    EXPECT_EQ(quit(), 0);
    EXPECT_EQ(files(), before);
}

TEST_F(OutputTest, PrintingToAFileGivesAPageThatLiesAsTheDrawingDoesAndHoldsGradients) {
    startWithDrawing();
    screen().key("ctrl+p");
    waitForDialog("Print");
    screen().key("alt+f"); // the name of the file
    screen().key("ctrl+a");
    screen().type(in("printed.pdf").string());
    screen().key("Return");
    // Completions of the file's name may show just then, and take the key for themselves.
    if (!eventually([&] { return !hasWindow("Print"); }, 2s))
        screen().key("Return");
    const std::string pdf = written(in("printed.pdf"));
    const std::size_t box = pdf.find("/MediaBox [");
    ASSERT_NE(box, std::string::npos);
    std::istringstream numbers(pdf.substr(box + 11, 80));
    double left = -1;
    double bottom = -1;
    double width = 0;
    double height = 0;
    numbers >> left >> bottom >> width >> height;
    EXPECT_GT(width, height) << "the drawing is wider than high";
    EXPECT_GT(height, 300) << "a sheet of paper, larger than the drawing";
    EXPECT_THAT(pdf, HasSubstr("/ShadingType 2"));
    EXPECT_THAT(pdf, Not(HasSubstr("/Subtype /Image")));
}

} // namespace
} // namespace desktop
