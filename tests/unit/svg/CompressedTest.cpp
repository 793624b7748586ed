// Drawings in compressed files.
#include "tests/unit/svg/ReadHelp.h"

#include "easel/files/Gzip.h"
#include "easel/svg/text/Fault.h"
#include "tests/support/ErrorOf.h"
#include "tests/support/TemporaryFolder.h"

#include <filesystem>

namespace {

using easel::drawing::Drawing;
using easel::files::Error;
using easel::files::isGzip;
using easel::files::packedGzip;
using easel::svg::Fault;
using easel::svg::toBytes;
using tests::contentOf;

const std::string kText = svgFile("<!-- kept --><rect id='r' width='50' height='50'/>");

std::string unpacked(const std::string& bytes) {
    return easel::files::unpackedGzip(bytes, 1 << 20).value();
}

// Two members, which this program itself never writes.
std::string packedByOthers() {
    return packedGzip(kText.substr(0, 40)) + packedGzip(kText.substr(40));
}

Error errorIn(const std::string& bytes, const easel::svg::ReadOptions& options = {}) {
    return tests::errorOf(easel::svg::readBytes(bytes, "bad.svgz", options));
}

class CompressedFile : public testing::Test {
  protected:
    void SetUp() override { tests::writeContent(folder_ / "a.svgz", packedByOthers()); }
    Drawing opened(const char* name) const { return easel::svg::readFile(folder_ / name).value(); }

    const tests::TemporaryFolder folder_;
};

TEST(Compressed, AnUnchangedDrawingGivesTheVerySameBytes) {
    const std::string bytes = packedByOthers();
    const Drawing drawing = readOk(bytes);
    EXPECT_EQ(drawing.size(), 1U);
    EXPECT_EQ(toBytes(drawing), bytes);
}

TEST(Compressed, AChangedDrawingIsCompressedAgainWithItsOtherBytesKept) {
    Drawing drawing = readOk(packedByOthers());
    giveGradient(drawing, 0, CGradientData());
    const std::string bytes = toBytes(drawing);
    ASSERT_TRUE(isGzip(bytes));
    EXPECT_NE(unpacked(bytes).find("<!-- kept --><rect id='r' width='50' height='50' fill="),
              std::string::npos)
        << unpacked(bytes);
    drawing.undo();
    EXPECT_EQ(toBytes(drawing), packedByOthers());
}

TEST(Compressed, DamageAndSizeAreNamed) {
    const std::string bytes = packedByOthers();
    const Error cut = errorIn(bytes.substr(0, bytes.size() / 2));
    EXPECT_EQ(cut.code, Fault::Damaged);
    EXPECT_EQ(cut.message(), "bad.svgz: it is compressed, and what it holds is damaged or cut off");
    easel::svg::ReadOptions options;
    options.largestFile = kText.size() - 1;
    EXPECT_EQ(errorIn(bytes, options).code, std::errc::file_too_large);
    EXPECT_EQ(errorIn(packedGzip("")).code, Fault::Empty);
}

TEST_F(CompressedFile, ItsOwnFileStaysAsItIsAndOthersGoByTheirNames) {
    Drawing drawing = opened("a.svgz");
    for (const char* name : {"a.svgz", "b.svgz", "b.SVGZ"}) {
        ASSERT_TRUE(easel::svg::saveFile(drawing, folder_ / name));
        EXPECT_EQ(contentOf(folder_ / name), packedByOthers()) << name;
    }
    ASSERT_TRUE(easel::svg::saveFile(drawing, folder_ / "b.svg"));
    EXPECT_EQ(contentOf(folder_ / "b.svg"), kText);

    Drawing plain = opened("b.svg");
    ASSERT_TRUE(easel::svg::saveFile(plain, folder_ / "c.svgz"));
    EXPECT_EQ(unpacked(contentOf(folder_ / "c.svgz")), kText);
}

TEST_F(CompressedFile, WithTheNameOfAPlainOneItStaysCompressed) {
    std::filesystem::rename(folder_ / "a.svgz", folder_ / "a.svg");
    Drawing drawing = opened("a.svg");
    giveGradient(drawing, 0, CGradientData());
    ASSERT_TRUE(easel::svg::saveFile(drawing, folder_ / "a.svg"));
    EXPECT_TRUE(isGzip(contentOf(folder_ / "a.svg")));
}

} // namespace
