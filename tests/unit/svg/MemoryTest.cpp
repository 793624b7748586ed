// What memory a drawing takes when it has been read.
#include "tests/unit/svg/ReadHelp.h"

#include <unistd.h>

#include <fstream>

namespace {

// What of the program is in memory, in bytes.
double residentBytes() {
    std::ifstream pages("/proc/self/statm");
    double all = 0;
    double resident = 0;
    pages >> all >> resident;
    return resident * static_cast<double>(sysconf(_SC_PAGESIZE));
}

// Elements with ids stay in the tree until the end, which then is about as large as the drawing.
TEST(Memory, WhatTheElementsOfALargeFileTookIsGivenBack) {
#if defined(__SANITIZE_ADDRESS__) || defined(__clang__)
    GTEST_SKIP() << "the sanitizers have an allocator of their own";
#endif
    std::string body;
    for (int i = 0; i < 100'000; ++i)
        body += "<rect id='rectangle" + std::to_string(i) + "' width='9' height='9' fill='#123'/>";
    const std::string text = svgFile(body);
    const double before = residentBytes();
    const auto drawing = readOk(text);
    EXPECT_LT((residentBytes() - before) / static_cast<double>(text.size()), 10);
    EXPECT_EQ(drawing.size(), 100'000u);
}

} // namespace
