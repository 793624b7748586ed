// Loading the current gradient when there already is one.
#include "Gradient/tool/StoredGradient.h"
#include "Gradient/model/GradientBlock.h"
#include "Gradient/tool/Globals.h"
#include "host/Defaults.h"
#include "host/TypeCodes.h"
#include "tests/unit/gradient/BlockEvents.h"
#include "tests/unit/gradient/EditorStage.h"
#include "tests/unit/gradient/Records.h"

#include <gmock/gmock.h>

using testing::ElementsAre;

namespace {

class StoredGradient : public testing::Test {
  protected:
    StoredGradient() : stage_(user_) {
        gCurrentGradient = RecordWith({{0.25, kRed}, {0.5, kGreen}, {0.75, kBlue}});
        gCurrentGradient.SetType(kRadialGradient);
        gCurrentGradient.SetAngle(30.0F);
    }
    ~StoredGradient() override { gCurrentGradient = CGradientData(); }

    static void ExpectDefault() {
        EXPECT_EQ(gCurrentGradient.Type(), kLinearGradient);
        EXPECT_EQ(gCurrentGradient.Angle(), 0.0F);
        EXPECT_THAT(StopsOf(gCurrentGradient.ColorList()), ElementsAre(Stop{0.0, kBlack}, Stop{1.0, kWhite}));
    }

  private:
    tests::IdleUser user_;
    tests::EditorStage stage_;
};

} // namespace

TEST_F(StoredGradient, WithNothingStoredTheDefaultTakesThePlaceOfTheCurrentOne) {
    InitDefaults();
    ExpectDefault();
}

TEST_F(StoredGradient, WithBytesThatAreNoGradientTheDefaultTakesThePlaceOfTheCurrentOne) {
    const StOwnedBlock rubbish(NewHandle(100));
    SetDefaultsResource(rubbish.get(), FourCC("GRDT"), 10001, "Gradient Default");
    InitDefaults();
    ExpectDefault();
}

TEST_F(StoredGradient, ABlockIsReadWhileItIsLockedAndThenGivenBack) {
    SaveDefaults();
    gBlockEvents.clear();
    InitDefaults();
    EXPECT_THAT(gBlockEvents, ElementsAre("lock", "read", "unlock", "dispose"));
    gBlockEvents.clear();
    SaveDefaults();
    EXPECT_THAT(gBlockEvents, ElementsAre("dispose"));
}

TEST_F(StoredGradient, AGradientThatCannotBeMadeIntoBytesLeavesTheStoreAlone) {
    SaveDefaults();
    gCurrentGradient.ColorList().clear();
    easel::runtime::process().journal().switchOn();
    SaveDefaults();
    EXPECT_THAT(easel::runtime::process().journal().take(), ElementsAre("MakeGradientData()"));
    InitDefaults();
    EXPECT_THAT(StopsOf(gCurrentGradient.ColorList()),
                ElementsAre(Stop{0.25, kRed}, Stop{0.5, kGreen}, Stop{0.75, kBlue}));
}

TEST_F(StoredGradient, WhatWasSavedComesBackWhole) {
    SaveDefaults();
    gCurrentGradient = CGradientData();
    InitDefaults();
    EXPECT_EQ(gCurrentGradient.Type(), kRadialGradient);
    EXPECT_EQ(gCurrentGradient.Angle(), 30.0F);
    EXPECT_THAT(StopsOf(gCurrentGradient.ColorList()),
                ElementsAre(Stop{0.25, kRed}, Stop{0.5, kGreen}, Stop{0.75, kBlue}));
}
