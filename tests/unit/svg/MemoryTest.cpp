// What memory a drawing takes when it has been read.
#include "tests/unit/svg/ReadHelp.h"

#include <malloc.h>
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

// Elements with ids stay in the tree until the end, which then takes about as much as the drawing itself.
TEST(Memory, WhatTheElementsOfALargeFileTookIsGivenBack) {
    std::string body;
    for (int i = 0; i < 100'000; ++i)
        body += "<rect id='rectangle" + std::to_string(i) + "' width='9' height='9' fill='#123'/>";
    const std::string text = svgFile(body);
    const auto drawing = readOk(text);
    const double after = residentBytes();
    malloc_trim(0);
    EXPECT_LT(after - residentBytes(), 2.0 * static_cast<double>(text.size()));
    EXPECT_EQ(drawing.size(), 100'000u);
}

} // namespace
