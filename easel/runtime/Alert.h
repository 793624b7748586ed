// A question with two answers, as an alert resource words it.
#pragma once

#include <string>

namespace easel::runtime {

// Texts are UTF-8.
struct Alert {
    int id = 0;
    std::string title;
    std::string text;   // the question
    std::string detail; // what there is to know beyond it; may be empty
    std::string yesButton;
    std::string noButton;
};

} // namespace easel::runtime
