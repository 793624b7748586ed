// Folders that variables of the environment name.
#include "easel/files/UserFolders.h"

#include <gtest/gtest.h>

#include <cstdlib>

namespace {

using namespace easel::files;

TEST(UserFolders, AreBelowHomeUnlessTheEnvironmentNamesThem) {
    ::setenv("HOME", "/home/of/somebody", 1);
    ::unsetenv("XDG_CONFIG_HOME");
    ::setenv("XDG_DATA_HOME", "not/absolute", 1);
    ::setenv("XDG_STATE_HOME", "", 1);
    EXPECT_EQ(configurationFolder(), "/home/of/somebody/.config");
    EXPECT_EQ(dataFolder(), "/home/of/somebody/.local/share");
    EXPECT_EQ(stateFolder(), "/home/of/somebody/.local/state/kestrad");

    ::setenv("XDG_CONFIG_HOME", "/c", 1);
    ::setenv("XDG_DATA_HOME", "/d", 1);
    ::setenv("XDG_STATE_HOME", "/s", 1);
    EXPECT_EQ(configurationFolder(), "/c");
    EXPECT_EQ(dataFolder(), "/d");
    EXPECT_EQ(stateFolder(), "/s/kestrad");
}

} // namespace
