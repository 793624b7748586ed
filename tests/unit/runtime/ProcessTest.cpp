// That there is one host process at a time, and that the next one begins anew.
#include "easel/runtime/DrawingWindow.h"
#include "easel/runtime/PickFilter.h"
#include "host/Mouse.h"
#include "host/Objects.h"
#include "tests/support/HostTest.h"
#include "tests/support/IdleUser.h"

#include <stdexcept>

namespace easel::runtime {
namespace {

classic::StoragePlaces placesIn(const tests::TemporaryFolder& folder) {
    return classic::StoragePlaces::within(folder.path());
}

TEST(Process, IsTheOneThatTheInterfaceReachesWhileItLives) {
    const tests::TemporaryFolder folder;
    {
        Process process(placesIn(folder));
        EXPECT_EQ(&runtime::process(), &process);
        EXPECT_THROW(Process(placesIn(folder)), std::logic_error) << "there is one at a time";
        EXPECT_EQ(&runtime::process(), &process) << "the second one took nothing away";
    }
    EXPECT_THROW(runtime::process(), std::logic_error);
    EXPECT_THROW(SetGridSnap(true), std::logic_error) << "an operation of the interface";
}

TEST(Process, LeavesNothingToTheNextOne) {
    const tests::TemporaryFolder folder;
    {
        Process process(placesIn(folder));
        DrawingWindow window(drawing::Drawing::create(10, 10), process);
        window.activate();
        SetGridSnap(true);
        SetSelDescrim(descrimAllOff);
        process.palette().add({});
        process.journal().switchOn();
        journal("Noted");
        process.blocks().create(7);
    }
    Process next(placesIn(folder));
    EXPECT_EQ(next.activeWindow(), nullptr);
    EXPECT_EQ(next.snap().grid, Switch::Off);
    EXPECT_EQ(next.pickFilter(), filterOf(drawing::KindSet::all()));
    EXPECT_TRUE(next.palette().tools().empty());
    EXPECT_TRUE(next.journal().take().empty());
    EXPECT_EQ(next.blocks().live(), 0U);
}

TEST(Process, HasAUserForAScope) {
    const tests::TemporaryFolder folder;
    Process process(placesIn(folder));
    tests::IdleUser user;
    {
        const UserScope inFront(process, user);
        EXPECT_EQ(&process.user(), &user);
    }
    EXPECT_FALSE(process.hasUser());
    EXPECT_THROW(process.user(), std::logic_error);
}

} // namespace
} // namespace easel::runtime
