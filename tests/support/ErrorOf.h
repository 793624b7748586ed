// The error of a result that a test expects to be one.
#pragma once

#include <stdexcept>

namespace tests {

// Throws, and so fails the test, where there is a value.
template <class Result> auto errorOf(const Result& result) {
    if (result)
        throw std::logic_error("there is a value in place of an error");
    return result.error();
}

} // namespace tests
