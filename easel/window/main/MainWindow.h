// The window of one drawing: menus, tools, canvas and status line.
#pragma once

#include "easel/drawing/GradientCommands.h"
#include "easel/drawing/GradientDescription.h"
#include "easel/runtime/DrawingWindow.h"
#include "easel/runtime/TemplateSaves.h"
#include "easel/window/keeping/FileOnDisk.h"
#include "easel/window/keeping/UnsavedKeeper.h"
#include "easel/window/waiting/CancelFirst.h"

#include <QMainWindow>
#include <QString>

#include <cstddef>
#include <cstdint>
#include <optional>
#include <set>
#include <vector>

class QAction;
class QActionGroup;
class QLabel;
class QMenu;
class QToolBar;
class QToolButton;

namespace easel::window {

class Canvas;
class GradientMenu;
class NoticeBar;
struct LoadedDrawing;
struct SharedParts;
enum class WriteChoice;

// How long a message stays in the status bar, in milliseconds.
inline constexpr int kMessageTime = 4000;

// Of a point of the drawing, with the digits that a pixel of the screen makes a difference in at that zoom.
QString coordinatesText(drawing::Point at, double zoom);

class MainWindow : public QMainWindow {
    Q_OBJECT

  public:
    // No file stands for a drawing that was never saved. The parts outlive the window.
    MainWindow(SharedParts& shared, LoadedDrawing loaded);
    ~MainWindow() override;

    const QString& file() const { return file_; }
    // What the user calls the drawing.
    QString name() const;
    // Whether nothing was ever done to it and it came from no file, so that it is only a place to open
    // something in.
    bool isPristine() const;
    NoticeBar& notice() { return *notice_; }
    // Shows the drawing as when it was opened, beside what the notice bar tells by now.
    void showAnew();
    // Another drawing takes the place of the one shown.
    void setDrawing(LoadedDrawing loaded);
    // The drawing shown comes out of this journal.
    void adopt(recovery::Journal journal);
    double zoom() const;
    // Puts the window where it was, with that zoom.
    void restore(const QByteArray& geometry, double zoom);
    // Keeps what is unsaved in its journal, unless the user does not want it, and returns when that is done.
    void keepUnsaved();
    // Asks what is to become of unsaved changes; false if the user would rather go on.
    bool mayEnd();
    bool isUnsaved() const { return drawingWindow_.drawing().dirty(); }

    // Lives while a drawing for this window is being read: the window has the file's name and shows no page.
    class Awaiting {
      public:
        Awaiting(MainWindow& window, const QString& file);
        ~Awaiting();
        Awaiting(const Awaiting&) = delete;
        Awaiting& operator=(const Awaiting&) = delete;

      private:
        MainWindow& window_;
    };

  Q_SIGNALS:
    void newDrawingWanted();
    void filesWanted(const QStringList& files);
    void quitWanted();
    // The user has closed the window, which is still there.
    void closing();
    // The window goes away.
    void closed();

  protected:
    void closeEvent(QCloseEvent* event) override;
    void changeEvent(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

  private:
    enum class Saved { Yes, No };

    // MainWindowMenus.cpp
    void buildActions();
    void buildFileMenu();
    void buildEditMenu();
    void buildViewMenu();
    void buildHelpMenu();
    void buildToolBar();
    void buildToolPalette();
    void fillRecentMenu();
    QAction* makeAction(const QString& text, const QString& tip, const QKeySequence& keys,
                        void (MainWindow::*slot)());

    // MainWindowFiles.cpp
    void open();
    Saved save();
    Saved saveAs();
    Saved saveTo(const QString& file);
    void saveNow() { save(); }
    void saveAsNow() { saveAs(); }
    void exportPng() { exportAs(QStringLiteral("png")); }
    void exportPdf() { exportAs(QStringLiteral("pdf")); }
    void exportSvg() { exportAs(QStringLiteral("svg")); }
    void exportAs(const QString& suffix);
    // Empty if the user would rather not.
    QString fileForExport(const QString& suffix);
    bool mayReplace(const QString& file);
    void print();
    void reopenChosen(bool wanted);
    Saved settleChanges();
    // `name` is offered; empty if the user cancels.
    QString chosenFile(const QString& title, const QString& name, const QString& filter);
    QString baseName() const;

    // MainWindowDisk.cpp
    void fileStateChanged(FileOnDisk::State state);
    void tellShared();
    void keepMine();
    void reload();
    void revertToOpened();
    bool mayLose(const QString& question, const QString& detail, const QString& yes);
    WriteChoice mayWrite(const QString& file);
    files::Result<> write(const std::filesystem::path& file, std::string_view bytes);
    Saved saveFailed(const QString& file, const QString& reason);

    // MainWindowGradients.cpp
    void buildGradientMenu(QMenu& edit);
    void gradientPressed(drawing::Point at);
    void gradientReleased();
    void gradientPickedUp(drawing::Point at);
    void rememberCost();
    void gradientsEdited();
    void tellCost(drawing::Loss loss);
    void tellWhatStaysBehind(const drawing::WholeGradient& gradient);
    void showWhatIsKept();

    // MainWindow.cpp
    void undo();
    void redo();
    void deleteSelected();
    void selectAllObjects();
    void openOptions();
    void zoomIn();
    void zoomOut();
    void zoomActual();
    void zoomFit();
    void snapChanged();
    void showSnap();
    void chooseAppearance(QAction* chosen);
    void showShortcuts();
    void showAbout();
    void buildStatusBar();
    void drawingChanged();
    void toolChanged();
    void showZoom(double zoom);
    void nothingToPaint();
    void setFile(files::KnownFile file);
    void showDrawing(drawing::Drawing drawing);

    SharedParts& shared_;
    runtime::DrawingWindow drawingWindow_;
    QString file_;
    Canvas* canvas_;
    NoticeBar* notice_;
    CancelFirst closing_;
    UnsavedKeeper unsaved_;
    std::optional<std::uint64_t> settledRevision_; // what is unsaved in it is known to be unwanted
    FileOnDisk onDisk_;
    std::optional<std::string> contentBefore_; // of the file, if the drawing did not come from it

    // The gradient that a tool was pressed on, and how many undo levels there were.
    struct Pressed {
        std::optional<drawing::WholeGradient> gradient;
        std::size_t undoLevels = 0;
        runtime::TemplateSaves templates;
    };
    std::optional<Pressed> pressed_;
    drawing::Loss cost_ = drawing::Loss::None; // of the first change of what is about to be changed
    std::size_t levelsBefore_ = 0;
    std::set<drawing::Loss> toldCosts_;
    QString toolMessage_;

    GradientMenu* gradientMenu_ = nullptr;
    QAction* undo_ = nullptr;
    QAction* redo_ = nullptr;
    QAction* delete_ = nullptr;
    QAction* options_ = nullptr;
    QAction* save_ = nullptr;
    QAction* revert_ = nullptr;
    QAction* open_ = nullptr;
    QAction* new_ = nullptr;
    QAction* zoomIn_ = nullptr;
    QAction* zoomOut_ = nullptr;
    QAction* zoomActual_ = nullptr;
    QAction* zoomFit_ = nullptr;
    QAction* snapGrid_ = nullptr;
    QAction* snapObject_ = nullptr;
    QMenu* recentMenu_ = nullptr;
    QActionGroup* toolActions_ = nullptr;
    QLabel* pointer_ = nullptr;
    QLabel* message_ = nullptr;
    QToolButton* zoomButton_ = nullptr;
};

} // namespace easel::window
