// The model of the dialog that lists things to delete: its title, its rows and which of them are selected.
#pragma once

#include <functional>
#include <string>
#include <vector>

namespace easel::host {

enum class DeletionCommand { Ok, Cancel };
enum class SelectionMode { One, Several };

class DeletionList {
  public:
    // Carries out a command; it may ask the user a question, and closes the list when that is the outcome.
    using Handler = std::function<void(DeletionCommand)>;

    // Texts are UTF-8.
    DeletionList(std::string title, std::vector<std::string> rows, SelectionMode mode, Handler handler);

    const std::string& title() const { return title_; }
    const std::vector<std::string>& rows() const { return rows_; }
    SelectionMode mode() const { return mode_; }
    // The selected rows, numbered from 0, in ascending order.
    const std::vector<int>& selection() const { return selection_; }
    // Replaces the selection; rows that are not there and repeated ones are left out, and all but the
    // first where only one can be selected.
    void select(std::vector<int> rows);
    // OK has something to delete; without a selection its button is disabled.
    bool canConfirm() const { return !selection_.empty(); }

    // The user presses a button. OK does nothing while there is nothing to delete.
    void command(DeletionCommand command);
    // Whoever shows the list does so until a command closes it.
    bool isOpen() const { return open_; }
    void close() { open_ = false; }

  private:
    std::string title_;
    std::vector<std::string> rows_;
    SelectionMode mode_;
    std::vector<int> selection_;
    Handler handler_;
    bool open_ = true;
};

} // namespace easel::host
