// How exactly places in a drawing are worth telling.
#pragma once

namespace easel::runtime {

// The decimals in which neighboring pixels of the screen differ at that zoom (pixels a drawing unit).
int decimalsAt(double zoom);

} // namespace easel::runtime
