// Faults of SVG files as a category of error codes.
#include "easel/svg/text/Fault.h"

#include <string>

namespace easel::svg {

namespace {

class FaultCategory : public std::error_category {
  public:
    const char* name() const noexcept override { return "SVG"; }
    // An error's own reason says more, for it knows the place.
    std::string message(int) const override { return "the file cannot be read as an SVG drawing"; }
};

} // namespace

std::error_code make_error_code(Fault fault) {
    static const FaultCategory category;
    return {static_cast<int>(fault), category};
}

} // namespace easel::svg
