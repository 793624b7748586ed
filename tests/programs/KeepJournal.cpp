// Keeps drawings in a journal as the window does, for tools that look at what is left when that is cut off.
//
//   keep_journal keep FOLDER ORIGIN TEXT      keeps a text, in the journal that was left if there is one, and
//                                             ends as if by a crash
//   keep_journal settle FOLDER                takes over what was left, and removes it as a save does
//   keep_journal list FOLDER                  prints the origin and the text of each that was left
#include "easel/files/WholeFile.h"
#include "easel/recovery/Journal.h"

#include <iostream>
#include <string>
#include <vector>

using easel::files::Error;
using easel::recovery::Journal;

namespace {

int fail(const Error& error) {
    std::cerr << error.message() << '\n';
    return 1;
}

int keep(const std::vector<std::string>& words) {
    std::vector<Journal> left = Journal::abandonedIn(words[1]);
    if (left.empty()) {
        auto journal = Journal::begin(words[1], words[2]);
        if (!journal)
            return fail(journal.error());
        left.push_back(*std::move(journal));
    }
    const auto kept = left.front().keep(words[3]);
    return kept ? 0 : fail(kept.error());
}

} // namespace

int main(int argc, char** argv) {
    const std::vector<std::string> words(argv + 1, argv + argc);
    if (words.size() < 2)
        return 2;
    if (words[0] == "keep" && words.size() == 4)
        return keep(words);
    std::vector<Journal> left = Journal::abandonedIn(words[1]);
    for (Journal& journal : left) {
        if (words[0] == "settle") {
            journal.remove();
        } else if (const auto text = easel::files::readWholeFile(journal.drawing())) {
            std::cout << journal.origin().string() << '\t' << std::string(text->begin(), text->end()) << '\n';
        }
    }
    return 0;
}
