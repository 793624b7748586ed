// Which of the faults that tools/mutate --together has woven into the sources is the one to be seen.
#pragma once

#include <cstdlib>

inline bool plantedFault(int number) {
    static const int kChosen = [] {
        const char* const text = std::getenv("PLANTED_FAULT");
        return text ? std::atoi(text) : 0;
    }();
    return kChosen == number;
}
