// A test with a host process of its own, which keeps its things in a folder that goes with it.
#pragma once

#include "easel/runtime/Process.h"
#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>

namespace tests {

class HostTest : public testing::Test {
  protected:
    TemporaryFolder folder_;
    easel::runtime::Process process_{easel::classic::StoragePlaces::within(folder_.path())};
};

} // namespace tests
