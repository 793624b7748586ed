// The model of the dialog that lists things to delete: its title, its rows and which of them are selected.
//
// A row's text is asked for when it is first wanted, since telling one can cost as much as telling how many
// there are. From then on it stays, whatever becomes of the things behind the list.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace easel::runtime {

enum class DeletionCommand { Ok, Cancel };
enum class SelectionMode { One, Several };

class DeletionList {
  public:
    // Carries out a command; it may ask the user a question, and closes the list when that is the outcome.
    using Handler = std::function<void(DeletionCommand)>;
    // Gives the texts of rows.
    using Describe = std::function<std::vector<std::string>(const std::vector<int>&)>;

    // Texts are UTF-8.
    DeletionList(std::string title, long count, Describe describe, SelectionMode mode, Handler handler);

    const std::string& title() const { return title_; }
    int count() const { return static_cast<int>(rows_.size()); }
    const std::string& text(int row);
    SelectionMode mode() const { return mode_; }
    // The selected rows, numbered from 0, in ascending order.
    const std::vector<int>& selection() const { return selection_; }
    // Replaces the selection; rows that are not there and repeated ones are left out, and all but the
    // first where only one can be selected. What is selected is the thing that the row tells of now.
    void select(std::vector<int> rows);
    // OK has something to delete; without a selection its button is disabled.
    bool canConfirm() const { return !selection_.empty(); }

    // The user presses a button. OK does nothing while there is nothing to delete.
    void command(DeletionCommand command);
    // Whoever shows the list does so until a command closes it.
    bool isOpen() const { return open_; }
    void close() { open_ = false; }

  private:
    void askFor(const std::vector<int>& rows);

    std::string title_;
    Describe describe_;
    std::vector<std::optional<std::string>> rows_;
    SelectionMode mode_;
    std::vector<int> selection_;
    Handler handler_;
    bool open_ = true;
};

} // namespace easel::runtime
