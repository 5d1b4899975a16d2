// zvxfilter: the CSV and HTML export filters and the CSV import filter. ZVX starts it in
// the application folder with ZVX_HOME set and waits for PLUGINS/extlock.tmp, which it
// therefore makes last, whatever happened.

#include <unistd.h>
#include <QApplication>
#include <QFileDialog>

#include <cstdlib>
#include <filesystem>
#include <iostream>
#include <optional>
#include <string>
#include <utility>

#include "common/app_files.h"
#include "common/text_case.h"
#include "csv_export.h"
#include "csv_import.h"
#include "html_export.h"
#include "platform/file_io.h"

namespace fs = std::filesystem;

namespace {

enum class Mode { CsvExport, HtmlExport, CsvImport };

std::optional<Mode> ModeOf(const std::string& argument) {
    const std::string mode = zvx::LowerCase(argument);
    if (mode == "csv-export")
        return Mode::CsvExport;
    if (mode == "html-export")
        return Mode::HtmlExport;
    if (mode == "csv-import")
        return Mode::CsvImport;
    return std::nullopt;
}

std::string Env(const char* name) {
    const char* value = std::getenv(name);
    return value ? value : "";
}

// Creates the lock file once: when told, or at the latest when it goes out of scope, so
// that ZVX ends its wait also after a failure.
class LockAtEnd {
  public:
    explicit LockAtEnd(fs::path plugins) : plugins_(std::move(plugins)) {}
    ~LockAtEnd() { now(); }
    void now() {
        if (std::exchange(made_, true))
            return;
        try {
            zvx::TouchFile(plugins_ / "extlock.tmp");
        } catch (const std::exception& error) {
            std::cerr << "zvxfilter: " << error.what() << "\n";
        }
    }

  private:
    fs::path plugins_;
    bool made_ = false;
};

// A copy of the export file that is the filter's own while a person chooses the target.
struct PrivateCopy {
    fs::path path;
    ~PrivateCopy() {
        std::error_code ec;
        fs::remove(path, ec);
    }
};

bool HasDisplay() {
    const std::string platform = Env("QT_QPA_PLATFORM");
    if (platform == "offscreen" || platform == "minimal")
        return false;
    return !platform.empty() || !Env("DISPLAY").empty() || !Env("WAYLAND_DISPLAY").empty();
}

// The file to write or read: ZVX_FILTER_TARGET, or the user's choice in a file dialog;
// empty when the dialog was cancelled.
fs::path ChooseFile(int& argc, char** argv, Mode mode) {
    if (const std::string target = Env("ZVX_FILTER_TARGET"); !target.empty())
        return target;
    if (!HasDisplay())
        throw std::runtime_error("no display to ask for a file, and ZVX_FILTER_TARGET is not set");
    QApplication app(argc, argv);
    QFileDialog dialog;
    if (mode == Mode::CsvImport) {
        dialog.setWindowTitle("Import CSV");
        dialog.setFileMode(QFileDialog::ExistingFile);
        dialog.setNameFilter("CSV (*.csv)");
    } else {
        const bool csv = mode == Mode::CsvExport;
        dialog.setWindowTitle(csv ? "Export CSV" : "Export HTML");
        dialog.setAcceptMode(QFileDialog::AcceptSave);
        dialog.setNameFilter(csv ? "CSV (*.csv)" : "HTML (*.html)");
        dialog.setDefaultSuffix(csv ? "csv" : "html");
    }
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty())
        return {};
    return fs::path(dialog.selectedFiles().first().toStdString());
}

int Run(int& argc, char** argv, Mode mode, const fs::path& plugins, LockAtEnd& lock) {
    fs::path exported = zvx::FindInFolder(plugins, "export.tmp");
    if (mode != Mode::CsvImport && !fs::is_regular_file(exported))
        throw std::runtime_error("there is nothing to export: " + exported.string() +
                                 " is missing");
    // ZVX waits ten seconds at most, and choosing a file may take longer: an export that
    // asks takes its own copy of the catalogue and lets ZVX go on at once. An import
    // cannot, as ZVX looks for its result when the wait ends.
    PrivateCopy copy;
    if (mode != Mode::CsvImport && Env("ZVX_FILTER_TARGET").empty()) {
        copy.path = fs::temp_directory_path() / ("zvxfilter-" + std::to_string(getpid()) + ".zvx");
        zvx::CopyFileBytes(exported, copy.path);
        exported = copy.path;
        lock.now();
    }
    const fs::path file = ChooseFile(argc, argv, mode);
    if (file.empty())
        return 0;
    switch (mode) {
        case Mode::CsvExport:
            zvx::filters::ExportCsv(exported, file);
            break;
        case Mode::HtmlExport:
            zvx::filters::ExportHtml(exported, file);
            break;
        case Mode::CsvImport: {
            const fs::path imported = zvx::FindInFolder(plugins, "imported.tmp");
            try {
                zvx::filters::ImportCsv(file, imported);
            } catch (...) {
                std::error_code ec;
                fs::remove(imported, ec);
                throw;
            }
            break;
        }
    }
    return 0;
}

}  // namespace

int main(int argc, char** argv) {
    const std::string home = Env("ZVX_HOME");
    const fs::path plugins =
        zvx::FindInFolder(home.empty() ? fs::current_path() : fs::path(home), zvx::kPluginsFolder);
    LockAtEnd lock(plugins);
    const std::optional<Mode> mode = argc > 1 ? ModeOf(argv[1]) : std::nullopt;
    if (!mode) {
        std::cerr << "usage: zvxfilter csv-export|html-export|csv-import\n";
        return 1;
    }
    try {
        return Run(argc, argv, *mode, plugins, lock);
    } catch (const std::exception& error) {
        std::cerr << "zvxfilter: " << error.what() << "\n";
        return 1;
    }
}
