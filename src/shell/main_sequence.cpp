#include "shell/main_sequence.h"

#include <QApplication>
#include <filesystem>
#include <system_error>

#include "common/application_folder.h"
#include "common/clock.h"
#include "common/common.h"
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
#include "ui/desktop.h"
#include "ui/flat_look.h"
#include "ui/icons.h"
#include "ui/news_panel.h"
#include "ui/qt_screen.h"

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
// progress go to its status bar.
void ConnectScreen(QtScreen& screen, frmMain& main) {
    screen.parentWindow = [&main]() -> QWidget* {
        QWidget* modal = QApplication::activeModalWidget();
        return modal ? modal : &main;
    };
    screen.onStatus = [&main](const std::string& text) { main.status(text); };
    screen.onProgress = [&main](long long value, long long maximum) {
        main.progress(value, maximum);
    };
}

// Steps 12 to 19: the stages after the main window is up.
void LoadExtras(Common& common, frmMain& main, frmSplash& splash,
                const RegistrationEnvironment& registration) {
    splash.setStatus("Loading Shared Documents...");
    splash.setStatus("Loading Plug-Ins...");
    splash.setStatus("Loading Add-Ons...");
    splash.setStatus("Setting Up Menu-Scripts...");
    splash.setStatus("Loading Internet-Components...");
    main.newsPanel()->initialise(ReadSetting(common, "NEWSCLIENTMINIMIZED", "NO").isYes(),
                                 VersionText());
    splash.setStatus("ZVX-Init...");
    main.status("");
    if (common.firstStartMarker == "yes" &&
        common.screen().message("Welcome!", kWelcomeText, MsgButtons::YesNo, MsgIcon::Question) ==
            MsgAnswer::Yes)
        RegisterFileTypes(common, registration);
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
    main.lifecycle().LoadDoc();
    common.pendingDocument.clear();
    main.raise();
    splash.finish();
}

}  // namespace

int Main(int argc, char** argv) {
    const std::string commandLine = AbsoluteDocumentPath(ApplyQuoteRule(JoinArguments(argc, argv)),
                                                         std::filesystem::current_path());
    QApplication app(argc, argv);
    InitUiResources();
    QtScreen screen;
    const std::filesystem::path program = ProgramPath();
    const std::filesystem::path appFolder =
        ResolveApplicationFolder(CurrentFolderEnvironment(program.parent_path()));
    EnsureFolder(appFolder);
    Common common(appFolder, appFolder, screen);
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
    PrepareConfigFiles(common);
    const RegistrationEnvironment registration = CurrentRegistrationEnvironment(program);
    PublishRegistryInfo(common, registration);
    RemoveLeftoverCommandFile(common);
    ReadStartPaths(common);
    LoadSettings(common);
    ApplyFlatLook(app, common.settings.flattenControls);

    auto* splash = new frmSplash;
    splash->show();
    splash->setStatus("Loading ZVX...");
    SystemClock clock;
    frmMain main(common, SystemDesktop(), clock);
    ConnectScreen(screen, main);
    main.onUnloaded = [&app] { app.quit(); };
    main.MDIForm_Load();
    splash->setStatus("Showing Main-Document...");
    main.show();
    main.status("");
    main.setSplash(splash);
    splash->raise();
    LoadExtras(common, main, *splash, registration);
    Finish(common, main, *splash);
    return main.unloaded() ? 0 : app.exec();
}

}  // namespace zvx
