// Starts the desktop: the application, the plug-in, the windows; and takes them down in the reverse order.
#include "easel/window/main/RunWindow.h"

#include "easel/files/ProgramFolders.h"
#include "easel/runtime/PluginModule.h"
#include "easel/runtime/Process.h"
#include "easel/runtime/TemplateFolder.h"
#include "easel/window/canvas/CanvasAccess.h"
#include "easel/window/dialogs/ItemAccess.h"
#include "easel/window/keeping/OfferRecovery.h"
#include "easel/window/look/EaselStyle.h"
#include "easel/window/look/PictureIcon.h"
#include "easel/window/look/Theme.h"
#include "easel/window/main/Application.h"
#include "easel/window/main/DesktopUser.h"
#include "easel/window/main/Languages.h"
#include "easel/window/main/MainWindow.h"
#include "easel/window/main/PluginSession.h"
#include "easel/window/main/SharedParts.h"
#include "easel/window/main/StarterOffer.h"
#include "easel/window/main/TemplateIcon.h"
#include "easel/window/main/Workspace.h"
#include "easel/window/waiting/TellProblem.h"
#include "easel/window/waiting/TerminationSignals.h"

#include <QFile>
#include <QPointer>
#include <QScopedValueRollback>
#include <QSessionManager>
#include <QSettings>
#include <QTimer>

#include <clocale>
#include <cstdio>
#include <cstdlib>

namespace easel::window {
namespace {

constexpr std::chrono::milliseconds kAtLeisure{150};

// Qt ends the program when it cannot reach the display; it is to say so plainly and leave no core behind.
void reportMessages(QtMsgType type, const QMessageLogContext&, const QString& text) {
    if (type == QtFatalMsg) {
        std::fprintf(stderr,
                     "easel: no window can be opened: %s\n"
                     "The commands play, render and templates work without a display; see easel --help.\n",
                     qUtf8Printable(text.section(QLatin1Char('\n'), 0, 0)));
        std::_Exit(2);
    }
    if (type == QtCriticalMsg)
        std::fprintf(stderr, "easel: %s\n", qUtf8Printable(text));
}

// The places of this user, but for the preferences if the command line names a folder for them.
classic::StoragePlaces placesFor(const StartUp& startUp) {
    classic::StoragePlaces places = classic::StoragePlaces::ofUser();
    if (!startUp.preferences.empty())
        places.preferences = startUp.preferences;
    return places;
}

// Empty if there is none to be found.
std::filesystem::path folderOfTemplates(const StartUp& startUp) {
    const auto found = runtime::templateFolder(
        startUp.plugin.empty() ? runtime::PluginModule::defaultFile() : startUp.plugin, placesFor(startUp));
    return found ? *found : std::filesystem::path();
}

void openFirstWindows(Workspace& workspace, const StartUp& startUp, SharedParts& shared) {
    // The first window is there before its drawing is read, and shows itself if that takes a while.
    const QPointer<MainWindow> first = &workspace.newDrawing();
    for (const std::filesystem::path& file : startUp.files)
        workspace.openFile(QFile::decodeName(file.c_str()), first);
    if (startUp.files.empty())
        workspace.reopenLast(first);
    if (first && offerStarterTemplates(first->notice(), shared))
        first->showAnew();
    offerRecovery(journalsToOffer(), shared.interaction.dialogs,
                  [&](recovery::Journal& journal) { return workspace.openKept(journal, first); });
    // Once the user looks at the window, what the gradient editor will ask for first is made ready.
    QTimer::singleShot(kAtLeisure, [&shared] { shared.process.storage().files().prepareListing(); });
}

// The desktop ends the session: first what is unsaved is made safe, whether or not there is time for
// questions.
void hearSessionEnd(const Application& application, Workspace& workspace) {
    QObject::connect(&application, &QGuiApplication::commitDataRequest, &workspace,
                     [&workspace](QSessionManager& manager) {
                         workspace.keepAll();
                         if (!manager.allowsInteraction())
                             return;
                         if (workspace.mayEnd())
                             manager.release();
                         else
                             manager.cancel();
                     });
    QObject::connect(&application, &QGuiApplication::saveStateRequest, &workspace,
                     [&workspace](QSessionManager& manager) {
                         workspace.keepAll();
                         manager.setRestartHint(QSessionManager::RestartIfRunning);
                     });
    QObject::connect(&application, &Application::sessionOver, &workspace, &Workspace::leave);
}

// Which drawing it was is only guessed: the one that the user looks at.
void hearLackOfMemory(const Application& application, Workspace& workspace, DialogStack& dialogs) {
    QObject::connect(
        &application, &Application::ranOutOfMemory, &workspace,
        [&workspace, &dialogs, telling = false]() mutable {
            if (telling)
                return;
            if (workspace.isEmpty()) {
                std::fputs("easel: not enough memory\n", stderr);
                return QCoreApplication::exit(2);
            }
            const QScopedValueRollback<bool> scope(telling, true);
            const QWidget* front = dialogs.parentForNext();
            while (front && !qobject_cast<const MainWindow*>(front))
                front = front->parentWidget();
            const auto* window = qobject_cast<const MainWindow*>(front);
            tellProblem(
                QObject::tr(
                    "%1: there is not enough memory for that, and it was not done. The drawing is as it "
                    "was before.")
                    .arg(window ? window->name() : QObject::tr("Easel")),
                dialogs);
        });
}

} // namespace
} // namespace easel::window

int easelRunWindow(const easel::window::StartUp& startUp, int argc, char** argv) {
    using namespace easel::window;
    qInstallMessageHandler(reportMessages);
    QApplication::setHighDpiScaleFactorRoundingPolicy(Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
    const Application application(argc, argv);
    // Qt has made the desktop's language that of the C library; the numbers of files have points all the
    // same.
    std::setlocale(LC_NUMERIC, "C");
    const std::vector<std::string> languages = languagesBeforeEnglish();
    const Languages texts(languages);
    QCoreApplication::setOrganizationName(QStringLiteral("kestrad"));
    QCoreApplication::setApplicationName(QStringLiteral("easel"));
    QGuiApplication::setApplicationDisplayName(QStringLiteral("Easel"));
    QGuiApplication::setDesktopFileName(QStringLiteral(EASEL_ID));
    QGuiApplication::setWindowIcon(
        pictureIcon(easel::files::sharedFile("icons/hicolor/scalable/apps/" EASEL_ID ".svg")));
    QGuiApplication::setQuitOnLastWindowClosed(false);
    if (!startUp.preferences.empty())
        QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope,
                           QFile::decodeName(startUp.preferences.c_str()));
    applyAppearance(storedAppearance());
    QApplication::setStyle(new EaselStyle);
    installCanvasAccess();
    installItemAccess();

    easel::runtime::Process process(placesFor(startUp));
    SharedParts shared(startUp.version, process);
    DesktopUser user(shared.interaction, shared.canvases, [&shared](const std::string& entry, double scale) {
        return templateIcon(shared.templateFolder, entry, scale);
    });
    const easel::runtime::UserScope inFront(process, user);
    Workspace workspace(shared);
    PluginSession plugin(startUp.plugin, languages, process, shared.tools, shared.interaction.waiting);
    shared.templateFolder = folderOfTemplates(startUp);
    hearSessionEnd(application, workspace);
    hearLackOfMemory(application, workspace, shared.interaction.dialogs);
    const TerminationSignals signals([&workspace] { workspace.quit(); });
    QTimer::singleShot(0, &workspace, [&] {
        openFirstWindows(workspace, startUp, shared);
        if (!plugin.problem().isEmpty())
            tellProblem(plugin.problem(), shared.interaction.dialogs);
    });
    return QApplication::exec();
}
