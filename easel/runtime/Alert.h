// A question with two answers, as an alert resource words it, or what has to be said in its place.
#pragma once

#include "easel/files/Result.h"

#include <optional>
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
    // Where no answer makes a difference: why, with the one button for no. The text is what comes of it.
    std::optional<files::Error> refusal = {};
    // The names of what the question is about, where its words leave that open; may be empty.
    std::vector<std::string> about = {};

    // All of it that has to be said.
    std::string message() const { return refusal ? refusal->message() + ". " + text : text; }
};

inline Alert refusal(int id, files::Error why, std::string outcome) {
    return {.id = id,
            .title = {},
            .text = std::move(outcome),
            .detail = {},
            .yesButton = {},
            .noButton = "OK",
            .refusal = std::move(why),
            .about = {}};
}

} // namespace easel::runtime
