// A question with two answers, as an alert resource words it.
#pragma once

#include <string>

namespace easel::host {

// Texts are UTF-8.
struct Alert {
    int id = 0;
    std::string text;
    std::string yesButton;
    std::string noButton;
};

} // namespace easel::host
