// A question with two answers, as an alert resource words it, or what has to be said in its place.
#pragma once

#include <string>
#include <utility>
#include <vector>

namespace easel::runtime {

// Texts are UTF-8.
struct Alert {
    int id = 0;
    std::string title;
    std::string text;   // the question
    std::string detail; // what there is to know beyond it; may be empty
    std::string yesButton;
    std::string noButton;
    // Where no answer makes a difference: the text is something to know, with the one button for no.
    bool isNotice = false;
    // The names of what the question is about, where its words leave that open; may be empty.
    std::vector<std::string> about = {};
};

inline Alert notice(int id, std::string text) {
    return {.id = id,
            .title = {},
            .text = std::move(text),
            .detail = {},
            .yesButton = {},
            .noButton = "OK",
            .isNotice = true,
            .about = {}};
}

} // namespace easel::runtime
