#include <gtest/gtest.h>

#include "platform/registration.h"
#include "support/temp_folder.h"

namespace zvx {
namespace {

class Registration : public ::testing::Test {
  protected:
    RegistrationEnvironment places() const {
        return {"/opt/zvx/zvx", (home / "config").string(), (home / "data").string(),
                (home / "home").string(), ""};
    }
    test::TestEnvironment env;
    test::TempFolder home;
};

TEST_F(Registration, PublicationWritesTheProgramInformation) {
    PublishRegistryInfo(env.common, places(), "2.4.1");
    EXPECT_EQ(test::ReadAll(home / "config" / "Morrowfen" / "ZVX.conf"),
              "[Information]\nZVXPath=" + env.folder.path().string() +
                  "\nZVXVersion=2.4.1\nInterfaceVersion=110\nFileVersion=1\n");
    PublishRegistryInfo(env.common, places());
    EXPECT_NE(test::ReadAll(ProgramInfoFile(places())).find("ZVXVersion=" ZVX_VERSION "\n"),
              std::string::npos);
}

TEST_F(Registration, UnsetOrRelativeFoldersFallBackBelowHome) {
    RegistrationEnvironment env = places();
    env.xdgConfigHome = "";
    env.xdgDataHome = "relative/data";
    EXPECT_EQ(ProgramInfoFile(env), home / "home" / ".config" / "Morrowfen" / "ZVX.conf");
    EXPECT_EQ(MimePackageFile(env),
              home / "home" / ".local" / "share" / "mime" / "packages" / "zvx.xml");
    EXPECT_EQ(DesktopEntryFile(env),
              home / "home" / ".local" / "share" / "applications" / "zvx.desktop");
}

TEST_F(Registration, FileTypesAreRegisteredForTheProgram) {
    RegistrationEnvironment target = places();
    target.programPath = "/opt/my $apps\\100%/zvx";
    RegisterFileTypes(env.common, target);
    std::string mime = test::ReadAll(home / "data" / "mime" / "packages" / "zvx.xml");
    EXPECT_NE(mime.find("<mime-type type=\"application/x-zvx-catalogue\">"), std::string::npos);
    EXPECT_NE(mime.find("<comment>ZVX-Document (Morrowfen)</comment>"), std::string::npos);
    EXPECT_NE(mime.find("<glob pattern=\"*.zvx\"/>"), std::string::npos);
    std::string entry = test::ReadAll(home / "data" / "applications" / "zvx.desktop");
    // Quoting gives "\$" and "\\", and the entry's own escape doubles each backslash
    // again; "%" is doubled.
    EXPECT_NE(entry.find("\nExec="
                         R"("/opt/my \\$apps\\\\100%%/zvx" %f)"
                         "\n"),
              std::string::npos);
    EXPECT_NE(entry.find("\nMimeType=application/x-zvx-catalogue;\n"), std::string::npos);
    EXPECT_EQ(env.screen.statuses, std::vector<std::string>{"Registering ZVX-FileTypes..."});
    ASSERT_EQ(env.screen.shown.size(), 1u);
    EXPECT_EQ(env.screen.shown[0].caption, "");
    EXPECT_EQ(env.screen.shown[0].text, "FileType-Registration completed.");
    EXPECT_EQ(env.screen.shown[0].buttons, MsgButtons::OkOnly);
    EXPECT_EQ(env.screen.shown[0].icon, MsgIcon::Information);
}

TEST_F(Registration, TheDatabasesAreRefreshedByToolsFoundOnThePath) {
    // Tools on the path that note their name and argument.
    std::filesystem::create_directories(home / "bin");
    for (const std::string tool : {"update-mime-database", "update-desktop-database"}) {
        test::WriteAll(home / "bin" / tool, "#!/bin/sh\necho \"" + tool + " $1\" >> '" +
                                                (home / "log").string() + "'\n");
        std::filesystem::permissions(home / "bin" / tool, std::filesystem::perms::owner_all);
    }
    RegistrationEnvironment target = places();
    target.searchPath = "relative:" + (home / "missing").string() + ":" + (home / "bin").string();
    RegisterFileTypes(env.common, target);
    std::string data = (home / "data").string();
    EXPECT_EQ(test::ReadAll(home / "log"), "update-mime-database " + data +
                                               "/mime\nupdate-desktop-database " + data +
                                               "/applications\n");
}

TEST_F(Registration, TheCompletionComesEvenWhenNothingCanBeWritten) {
    test::WriteAll(home / "blocker", "");
    RegistrationEnvironment target = places();
    target.xdgDataHome = (home / "blocker").string();
    target.xdgConfigHome = (home / "blocker").string();
    PublishRegistryInfo(env.common, target);
    RegisterFileTypes(env.common, target);
    EXPECT_FALSE(std::filesystem::exists(MimePackageFile(target)));
    ASSERT_EQ(env.screen.shown.size(), 1u);
    EXPECT_EQ(env.screen.shown[0].text, "FileType-Registration completed.");
}

}  // namespace
}  // namespace zvx
