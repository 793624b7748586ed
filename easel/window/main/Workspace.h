// All open windows: opens drawings in them, and closes them when the program is to quit.
#pragma once

#include "easel/drawing/Drawing.h"
#include "easel/window/waiting/CancelFirst.h"

#include <QObject>
#include <QPointer>
#include <QString>

#include <vector>

class QWidget;

namespace easel::recovery {
class Journal;
}

namespace easel::window {

class MainWindow;
struct LoadedDrawing;
struct SharedParts;

class Workspace : public QObject {
    Q_OBJECT

  public:
    // The parts outlive the workspace.
    explicit Workspace(SharedParts& shared);
    // Closes what is open, without asking.
    ~Workspace() override;

    MainWindow& newDrawing();
    // Opens the file in a window of its own, or in the window `over` if that holds nothing yet, or brings the
    // window that shows it to the front. Tells the user why it cannot.
    void openFile(const QString& file, QWidget* over);
    // Opens one after the other, whichever of them can be opened.
    void openFiles(const QStringList& files, QWidget* over);
    // Opens what a journal keeps, in the window that shows its file if nothing is unsaved there. False, and
    // the journal is left, if it cannot be opened; the user is told why.
    bool openKept(recovery::Journal& journal, QWidget* over);
    // Opens what was open at the end of the last run, if the user wants that.
    void reopenLast(QWidget* over);
    // Has what is unsaved in journals and remembers what is open, and returns when that is done.
    void keepAll();
    // Asks about unsaved changes in all windows; false if the user would rather go on.
    bool mayEnd();
    // Closes all windows, asking about unsaved changes. What the plug-in waits for is cancelled first.
    void quit();
    // Whether there is no window.
    bool isEmpty() const { return windows_.empty(); }
    // Ends the program without asking. What is in journals stays there for the next start.
    void leave();

  private:
    MainWindow& show(LoadedDrawing loaded);
    MainWindow* windowShowing(const QString& file) const;
    void windowClosing();
    void windowClosed(const MainWindow& window);
    void rememberSession();

    SharedParts& shared_;
    std::vector<QPointer<MainWindow>> windows_;
    CancelFirst quitting_;
    CancelFirst leaving_;
    bool isQuitting_ = false;
};

} // namespace easel::window
