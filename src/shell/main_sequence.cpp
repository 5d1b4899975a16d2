#include "shell/main_sequence.h"

#include <QApplication>
#include <exception>
#include <filesystem>
#include <system_error>

#include "common/application_folder.h"
#include "common/clock.h"
#include "common/common.h"
#include "extensions/extension_lists.h"
#include "platform/instance_lock.h"
#include "platform/registration.h"
#include "shell/Form1.h"
#include "shell/command_file.h"
#include "shell/command_line.h"
#include "shell/config_files.h"
#include "shell/frmMain.h"
#include "shell/frmSplash.h"
#include "shell/start_checks.h"
#include "shell/window_settings.h"
#include "store/load_settings.h"
#include "store/settings.h"
#include "ui/about.h"
#include "ui/command_guard.h"
#include "ui/desktop.h"
#include "ui/flat_look.h"
#include "ui/icons.h"
#include "ui/news_panel.h"
#include "ui/qt_screen.h"
#include "ui/session_end.h"
#include "ui/zvx_application.h"

namespace zvx {

namespace {

constexpr const char* kWelcomeText =
    "Thank you for installing ZVX on your Computer!\r\n"
    "Do you want to make ZVX your default application\r\n"
    "for opening ZVX-Documents (strongly recommened!) ?";

std::filesystem::path ProgramPath() {
    std::error_code ec;
    std::filesystem::path path = std::filesystem::read_symlink("/proc/self/exe", ec);
    return ec ? std::filesystem::path() : path;
}

// Dialogs belong to the main window (or the dialog in front of it); status and
// progress go to its status bar. For the life of the main window only.
class ScreenConnection {
  public:
    ScreenConnection(QtScreen& screen, frmMain& main) : screen_(screen) {
        screen.parentWindow = [&main]() -> QWidget* {
            QWidget* modal = QApplication::activeModalWidget();
            return modal ? modal : &main;
        };
        screen.onStatus = [&main](const std::string& text) { main.status(text); };
        screen.onProgress = [&main](long long value, long long maximum) {
            main.progress(value, maximum);
        };
    }
    ~ScreenConnection() {
        screen_.parentWindow = nullptr;
        screen_.onStatus = nullptr;
        screen_.onProgress = nullptr;
    }
    ScreenConnection(const ScreenConnection&) = delete;
    ScreenConnection& operator=(const ScreenConnection&) = delete;

  private:
    QtScreen& screen_;
};

// Steps 12 to 19: the stages after the main window is up.
void LoadExtras(Common& common, frmMain& main, frmSplash& splash,
                const RegistrationEnvironment& registration) {
    splash.setStatus("Loading Shared Documents...");
    const ScanTextSink showOnSplash = [&splash](const std::string& text) {
        splash.setStatus(QString::fromStdString(text));
    };
    splash.setStatus("Loading Plug-Ins...");
    RunGuarded(common, [&] { BuildPlugInList(common, showOnSplash); });
    splash.setStatus("Loading Add-Ons...");
    RunGuarded(common, [&] { BuildAddOnList(common, showOnSplash); });
    splash.setStatus("Setting Up Menu-Scripts...");
    RunGuarded(common, [&main] { main.AddOnsShow(); });
    RunGuarded(common, [&main] { main.MenuMakerYo(); });
    splash.setStatus("Loading Internet-Components...");
    main.newsPanel()->initialise(ReadSetting(common, "NEWSCLIENTMINIMIZED", "NO").isYes(),
                                 VersionText());
    splash.setStatus("ZVX-Init...");
    main.status("");
    if (common.firstStartMarker == "yes" &&
        common.screen().message("Welcome!", kWelcomeText, MsgButtons::YesNo, MsgIcon::Question) ==
            MsgAnswer::Yes)
        RunGuarded(common, [&] { RegisterFileTypes(common, registration); });
    splash.setStatus("Running Start-Up-Plugins...");
    common.PLUGSTART("ZVXSTART");
}

// Step 20: the welcome window, or the document of the command line.
void Finish(Common& common, frmMain& main, frmSplash& splash) {
    if (common.pendingDocument.empty()) {
        main.nosplash();
        main.raise();
        Form1 welcome(common, &main);
        welcome.coreCalls = [&main](const std::string& name) { main.ZVXCoreCalls(name); };
        welcome.askQuit = [&main] { main.AskQuit(); };
        welcome.exec();
        return;
    }
    splash.setStatus("Loading external Document...");
    RunGuarded(common, [&main] { main.lifecycle().LoadDoc(); });
    common.pendingDocument.clear();
    main.raise();
    splash.finish();
}

// Steps 5 to 9: the files of the application folder and the settings. A step that
// fails is told and the start goes on: defaults stand in for what could not be read.
void PrepareFolderAndSettings(Common& common, const RegistrationEnvironment& registration) {
    PrepareConfigFiles(common);
    PrepareFilterDeclarations(common, registration.programPath.parent_path());
    RunGuarded(common, [&] { PublishRegistryInfo(common, registration); });
    RemoveLeftoverCommandFile(common);
    RunGuarded(common, [&] { ReadStartPaths(common); });
    RunGuarded(common, [&] { LoadSettings(common); });
}

// Steps 10 to 20, from the splash to the welcome window, then the run.
int ShowAndRun(ZvxApplication& app, Common& common, const ProgramServices& services,
               const RegistrationEnvironment& registration) {
    ApplyFlatLook(app, common.settings.flattenControls);
    auto* splash = new frmSplash;
    splash->show();
    splash->setStatus("Loading ZVX...");
    frmMain main(common, services.desktop, services.clock);
    ScreenConnection connection(services.screen, main);
    // Before the main loop runs, the unload closes every window, which ends their loops;
    // once it runs, the main loop is told to end as well.
    bool running = false;
    main.onUnloaded = [&running] {
        if (running)
            QCoreApplication::exit(0);
    };
    SessionEnd sessionEnd([&main] { main.close(); });
    main.MDIForm_Load();
    splash->setStatus("Showing Main-Document...");
    main.show();
    main.status("");
    main.setSplash(splash);
    splash->show();
    splash->raise();
    LoadExtras(common, main, *splash, registration);
    Finish(common, main, *splash);
    if (main.unloaded())
        return 0;
    running = true;
    return app.exec();
}

}  // namespace

int RunProgram(ZvxApplication& app, const std::string& commandLine,
               const ProgramServices& services) {
    QtScreen& screen = services.screen;
    const std::filesystem::path appFolder =
        ResolveApplicationFolder(CurrentFolderEnvironment(services.programPath.parent_path()));
    EnsureFolder(appFolder);
    Common common(appFolder, appFolder, screen);
    app.onException = [&common](std::exception_ptr error) { ShowErrorBox(common, error); };
    struct ForgetHandler {
        ZvxApplication& app;
        ~ForgetHandler() { app.onException = nullptr; }
    } forget{app};
    if (IsRootFolder(appFolder)) {
        screen.message(kRootRefusalCaption, kRootRefusalText, MsgButtons::OkOnly,
                       MsgIcon::Critical);
        return 1;
    }
    InstanceLock lock;
    const bool otherInstance = !lock.acquire(appFolder);
    switch (DecideStart(commandLine, otherInstance, FileOpensForReading(commandLine))) {
        case StartDecision::EndSilently:
            return 0;
        case StartDecision::HandOver:
            return HandOverDocument(common, commandLine) ? 0 : 1;
        case StartDecision::OpenPending:
            common.pendingDocument = commandLine;
            break;
        case StartDecision::StartPlain:
            break;
    }
    const RegistrationEnvironment registration =
        CurrentRegistrationEnvironment(services.programPath);
    PrepareFolderAndSettings(common, registration);
    return ShowAndRun(app, common, services, registration);
}

int Main(int argc, char** argv) {
    const std::string commandLine = AbsoluteDocumentPath(ApplyQuoteRule(JoinArguments(argc, argv)),
                                                         std::filesystem::current_path());
    ZvxApplication app(argc, argv);
    InitUiResources();
    QtScreen screen;
    SystemClock clock;
    try {
        return RunProgram(app, commandLine, {screen, SystemDesktop(), clock, ProgramPath()});
    } catch (const std::exception& error) {
        // What the start cannot go on without (an application folder that cannot be
        // made, say) ends it, told in the same box as any failure.
        screen.message(kErrorBoxCaption, error.what(), MsgButtons::OkOnly, MsgIcon::Critical);
        return 1;
    }
}

}  // namespace zvx
