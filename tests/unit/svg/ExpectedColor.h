// Colors of CSS beside the bytes that they are.
#pragma once

#include "easel/svg/style/Color.h"

#include <gtest/gtest.h>

namespace tests {

inline void expectBytes(const char* text, int red, int green, int blue, double opacity = 1) {
    const auto color = easel::svg::parseColor(text);
    ASSERT_TRUE(color) << text;
    EXPECT_NEAR(color->color.red / 257.0, red, 0.51) << text;
    EXPECT_NEAR(color->color.green / 257.0, green, 0.51) << text;
    EXPECT_NEAR(color->color.blue / 257.0, blue, 0.51) << text;
    EXPECT_NEAR(color->opacity, opacity, 1e-9) << text;
}

} // namespace tests
