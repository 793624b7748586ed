// Gradients in files: the ending chooses the format, and what cannot be read is named with its reason.
#include "easel/exchange/GradientFiles.h"
#include "easel/classic/AppleDouble.h"
#include "easel/classic/ResourceFork.h"
#include "easel/exchange/StarterTemplates.h"
#include "easel/exchange/TemplateFile.h"
#include "easel/exchange/TemplateShelf.h"
#include "tests/support/ErrorOf.h"
#include "tests/support/TemporaryFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace easel::exchange;
namespace classic = easel::classic;
namespace files = easel::files;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using tests::errorOf;
using tests::writeContent;

namespace {

CGradientData threeStops() {
    CGradientData gradient;
    gradient.SetAngle(30);
    gradient.ColorList() = {{{0, 0, 0}, 0}, {{65535, 257, 1}, 0.3}, {{65535, 65535, 65535}, 1}};
    return gradient;
}

std::string svgFile(const std::string& content) {
    return "<svg xmlns='http://www.w3.org/2000/svg' xmlns:xlink='http://www.w3.org/1999/xlink' width='9' "
           "height='9'>" +
           content + "</svg>";
}

class GradientFiles : public testing::Test {
  protected:
    std::vector<std::string> exported(const std::string& name,
                                      const CGradientData& gradient = threeStops()) const {
        const auto notes = exportFile(gradient, "Name", folder_ / name, trash_);
        if (!notes)
            return {notes.error().message()};
        return *notes;
    }
    std::string refusalOf(const std::string& name, const std::string& content) const {
        writeContent(folder_ / name, content);
        return errorOf(importFile(folder_ / name)).message();
    }
    ImportedGradient importedFrom(const std::string& content) const {
        writeContent(folder_ / "in.svg", content);
        auto result = importFile(folder_ / "in.svg");
        EXPECT_TRUE(result) << content;
        return result ? *result : ImportedGradient{};
    }

    tests::TemporaryFolder folder_;
    files::Trash trash_{folder_ / "Trash"};
};

TEST_F(GradientFiles, WhatIsWrittenInEachFormatReadsBack) {
    for (const char* name : {"a.GRD", "b.bin", "c.svg", "d.css", "e.GGR"}) {
        EXPECT_THAT(exported(name).size(), testing::Le(1U)) << name;
        const auto back = importFile(folder_ / name);
        ASSERT_TRUE(back) << name << errorOf(back).message();
        const auto& stops = back->gradient.ColorList();
        ASSERT_EQ(stops.size(), 3U) << name;
        EXPECT_NEAR(std::next(stops.begin())->Percent(), 0.3, 1e-9) << name;
        EXPECT_EQ(std::next(stops.begin())->ColorRGB(), (RGBColor{65535, 257, 1})) << name;
    }
}

TEST_F(GradientFiles, OtherEndingsAreRefusedInBothDirections) {
    EXPECT_THAT(exported("a.txt"), ElementsAre(HasSubstr("its ending is none of .GRD")));
    EXPECT_THAT(refusalOf("a.txt", "linear-gradient(red, blue)"),
                HasSubstr("a.txt: its ending is none of .GRD"));
    EXPECT_THAT(refusalOf("a", ""), HasSubstr("its ending"));
}

TEST_F(GradientFiles, AGradientWithoutColorsIsNotWritten) {
    CGradientData none;
    none.ColorList().clear();
    EXPECT_THAT(exported("a.css", none),
                ElementsAre(HasSubstr("a gradient without colors cannot be written")));
    EXPECT_FALSE(std::filesystem::exists(folder_ / "a.css"));
}

TEST_F(GradientFiles, FilesThatAreNotThereOrDamagedAreNamed) {
    for (const char* name : {"none.css", "none.GRD", "none.svg", "none.bin"})
        EXPECT_THAT(errorOf(importFile(folder_ / name)).message(), HasSubstr(name));
    EXPECT_THAT(refusalOf("a.bin", "short"), HasSubstr("no MacBinary file"));
    EXPECT_THAT(refusalOf("alone.GRD", ""), HasSubstr("alone.GRD"));
    EXPECT_THAT(refusalOf("a.ggr", "nothing"), HasSubstr("no GIMP gradient"));
    EXPECT_THAT(refusalOf("a.svg", "<svg"), HasSubstr("a.svg"));
    EXPECT_THAT(refusalOf("b.svg", svgFile("<rect width='5' height='5'/>")),
                HasSubstr("there is no gradient in it"));
}

TEST_F(GradientFiles, TemplatesWithoutAGradientSayWhatTheyLack) {
    const std::filesystem::path file = folder_ / "t.GRD";
    EXPECT_THAT(errorOf(templateIn({}, file)).message(), HasSubstr("t.GRD"));
    classic::ResourceFork fork;
    EXPECT_THAT(errorOf(templateIn(*fork.write(), file)).message(), HasSubstr("it holds no gradient"));
    fork.put({classic::fourCharacters("TMPL"), 0, 0, "", {1, 2, 3}});
    EXPECT_FALSE(templateIn(*fork.write(), file));
    CGradientData none;
    none.ColorList().clear();
    EXPECT_FALSE(templateHeader(none));
    classic::AppleDouble header;
    header.setFinderInfo({1, 2});
    const auto bytes = header.write();
    writeContent(file, "");
    writeContent(folder_ / "._t.GRD", {bytes.begin(), bytes.end()});
    EXPECT_FALSE(importFile(file)) << "a header without a resource fork";
}

TEST_F(GradientFiles, WhatARecordLeavesOutOfADrawingsGradientIsSaid) {
    const std::string stops = "<stop stop-color='red'/><stop offset='1' stop-color='blue'";
    const auto notesOn = [&](const std::string& attributes, const std::string& kind,
                             const std::string& lastStop = "") {
        return importedFrom(svgFile("<" + kind + " id='g' " + attributes + ">" + stops + lastStop + "/></" +
                                    kind + "><rect id='r' width='8' height='4' fill='url(#g)'/>"))
            .notes;
    };
    EXPECT_THAT(notesOn("", "linearGradient"), IsEmpty());
    EXPECT_THAT(notesOn("", "linearGradient", " stop-opacity='0.5'"), ElementsAre(HasSubstr("opacity")));
    EXPECT_THAT(notesOn("", "radialGradient"), ElementsAre(HasSubstr("ellipse")));
    EXPECT_EQ(importedFrom(svgFile("<linearGradient id='g'>" + stops +
                                   "/></linearGradient><rect id='r' width='8' height='4' fill='url(#g)'/>"))
                  .name,
              "r");
}

TEST_F(GradientFiles, AGradientThatNoShapeHasIsShownOnASquare) {
    const std::string stops = "<stop stop-color='red'/><stop offset='1' stop-color='blue'/>";
    const auto alone = importedFrom(svgFile("<linearGradient id='alone'>" + stops + "</linearGradient>"));
    EXPECT_EQ(alone.name, "alone");
    EXPECT_THAT(alone.notes, ElementsAre(HasSubstr("no shape has it")));
    // One that refers to another has stops though it holds none.
    const auto referring = importedFrom(svgFile(
        "<radialGradient id='second' xlink:href='#first' gradientUnits='userSpaceOnUse' cx='9' cy='9' r='9'/>"
        "<linearGradient>" +
        stops + "</linearGradient><linearGradient id='first'>" + stops + "</linearGradient>"));
    EXPECT_EQ(referring.name, "second");
    EXPECT_EQ(referring.gradient.Type(), kRadialGradient);
    EXPECT_FALSE(importFile(folder_ / "none.svg"));
}

TEST_F(GradientFiles, AShelfSavesFindsAndRemovesByName) {
    const TemplateShelf shelf(folder_ / "shelf", folder_ / "Trash");
    EXPECT_THAT(shelf.names(), IsEmpty());
    EXPECT_EQ(shelf.save("Dusk", threeStops()).value(), TemplateShelf::Saved::New);
    EXPECT_EQ(shelf.save("Dusk.GRD", threeStops()).value(), TemplateShelf::Saved::Replaced);
    EXPECT_THAT(shelf.names(), ElementsAre("Dusk"));
    EXPECT_EQ(shelf.load("Dusk").value().ColorList().size(), 3U);
    EXPECT_THAT(errorOf(shelf.load("Dawn")).message(), HasSubstr("Dawn"));
    EXPECT_THAT(errorOf(shelf.load("\u4e2d")).message(), HasSubstr("\u4e2d"));
    EXPECT_TRUE(shelf.remove("Dusk"));
    EXPECT_FALSE(shelf.remove("Dusk"));
    CGradientData none;
    none.ColorList().clear();
    EXPECT_FALSE(shelf.save("Empty", none));
    EXPECT_THAT(errorOf(shelf.save("\u4e2d", threeStops())).message(), HasSubstr("no character"));
    EXPECT_FALSE(shelf.save("", threeStops()));
    writeContent(folder_ / "file", "");
    EXPECT_FALSE(TemplateShelf(folder_ / "file/shelf", folder_ / "Trash").save("Dusk", threeStops()));
}

TEST_F(GradientFiles, StartersAreAddedUnlessTheirNameIsTaken) {
    writeContent(folder_ / "starters/Sea.css", "linear-gradient(#00f, #fff)");
    writeContent(folder_ / "starters/Fire.css", "linear-gradient(#f00, #ff0)");
    const TemplateShelf shelf(folder_ / "shelf", folder_ / "Trash");
    ASSERT_TRUE(shelf.save("Sea", threeStops()));
    EXPECT_THAT(addStarterTemplates(shelf, folder_ / "starters").value(), ElementsAre("Fire"));
    EXPECT_EQ(shelf.load("Sea").value().ColorList().size(), 3U) << "the user's own stays";
    EXPECT_FALSE(addStarterTemplates(shelf, folder_ / "nowhere"));
    writeContent(folder_ / "starters/Broken.css", "no gradient");
    EXPECT_FALSE(addStarterTemplates(shelf, folder_ / "starters"));
    writeContent(folder_ / "file", "");
    std::filesystem::remove(folder_ / "starters/Broken.css");
    EXPECT_FALSE(
        addStarterTemplates(TemplateShelf(folder_ / "file/shelf", folder_ / "Trash"), folder_ / "starters"));
}

} // namespace
