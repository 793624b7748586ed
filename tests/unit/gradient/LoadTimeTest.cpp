// What exists as soon as the module is loaded.
#include "Gradient/editor/EditorState.h"
#include "Gradient/editor/Swatches.h"
#include "Gradient/tool/Globals.h"

#include <gtest/gtest.h>

TEST(LoadTime, TheFixedPointConstantsAreConverted) {
    EXPECT_EQ(tolD768, 768.0 / 65536.0);
    EXPECT_EQ(fixAng90, 90 * 65536);
    EXPECT_EQ(fixAng360, 360 * 65536);
}

TEST(LoadTime, TheHandlesOfTheDrawingProceduresAreTheProcedures) {
    EXPECT_EQ(UpdateColorRectUPP, &UpdateColorRect);
    EXPECT_EQ(UpdateGradientRectUPP, &UpdateGradientRect);
    EXPECT_EQ(UpdatePreviewRectUPP, &UpdatePreviewRect);
}
