// Start-up and the links to the host, over programs and functions that the test makes.
#include <gtest/gtest.h>

#include "entry/locations.h"
#include "tests/entry/fake_modules.h"

namespace lx {
namespace {

const Path programFolder = "C:\\cad\\";
const Path dat = Path("DAT") + folderSeparator;

TEST(StartUp, FoldersComeFromTheExtensionBeforeTheProgram) {
    FakeModules modules;
    installHost(modules, host_module::application, "C:\\program\\");
    installHost(modules, host_module::extension, programFolder);
    hostSide().profile = "C:\\users\\jan";
    const Locations found = findLocations(modules);
    EXPECT_EQ(found.host, &modules.loadedModules.at(host_module::extension));
    EXPECT_EQ(found.dataFolder, Path("C:\\users\\jan") + folderSeparator + dat);
    EXPECT_EQ(found.helpFile, "C:\\cad\\VORDANLT.HLP");
    EXPECT_EQ(hostSide().sizesGiven, std::vector<int>{261});
    for (const Path profile : {"C:\\users\\", "C:/users/"}) {
        hostSide().profile = profile;
        EXPECT_EQ(findLocations(modules).dataFolder, profile + dat) << "no other separator";
    }
    // One that fills the buffer without room for its zero still ends there.
    hostSide().profile = Path(300, 'x');
    EXPECT_EQ(findLocations(modules).dataFolder, Path(261, 'x') + folderSeparator + dat);
}

TEST(StartUp, WithoutAProfileFolderTheDataLieUnderTheProgram) {
    FakeModules modules;
    modules.program.fileName = "/opt/a-program-of-any-name";
    EXPECT_EQ(findLocations(modules).dataFolder, "/opt/" + dat);
    EXPECT_EQ(findLocations(modules).helpFile, "/opt/VORDANLT.HLP");
    modules.program.fileName = "x";
    EXPECT_EQ(findLocations(modules).dataFolder, dat);

    installHost(modules, host_module::application, programFolder);
    EXPECT_EQ(findLocations(modules).dataFolder,
              programFolder + dat);  // answers with an empty text
    modules.loadedModules.at(host_module::application).symbols.erase("GetProfilePath");
    EXPECT_EQ(findLocations(modules).dataFolder, programFolder + dat);
}

struct Links : testing::Test {
    FakeModules modules;
    Path data = "C:\\data\\";
    Path helpFile = "C:\\cad\\VORDANLT.HLP";
    HostLinks links{modules, data, helpFile};
    Links() { installHost(modules, host_module::application, programFolder); }
};

TEST_F(Links, HandOnWhatTheServicesAnswer) {
    hostSide().libraryFolder = "L:\\shared\\";
    hostSide().catalogueFolder = "K:\\";
    EXPECT_TRUE(links.present());
    EXPECT_EQ(links.getHostFolder(HostFolder::library), "L:\\shared\\");
    EXPECT_EQ(links.getHostFolder(HostFolder::catalogue), "K:\\");
    EXPECT_EQ(hostSide().sizesGiven, (std::vector<int>{260, 260}));
    hostSide().folderAnswer = 0x7FFF00;  // its low byte alone counts
    EXPECT_EQ(links.getHostFolder(HostFolder::library), std::nullopt);
    hostSide().folderAnswer = 0x100 | 1;
    hostSide().libraryFolder = Path(400, 'x');
    EXPECT_EQ(links.getHostFolder(HostFolder::library), Path(260, 'x'));
    EXPECT_EQ(links.variable("OTHER"), "");
    EXPECT_EQ(links.textStyles(), (std::vector<Text>{"Standard", "Iso"}));
}

TEST_F(Links, TheTableIsAskedAfreshOfTheProgramBeforeTheExtension) {
    modules.loadedModules[host_module::extension] = {};  // without the export
    EXPECT_TRUE(links.present());
    hostSide().noTable = true;
    EXPECT_FALSE(links.present());
    hostSide().noTable = false;
    EXPECT_TRUE(links.present());
    modules.loadedModules.erase(host_module::application);
    EXPECT_FALSE(links.present());
    modules.loadedModules.erase(host_module::extension);
    installHost(modules, host_module::extension, programFolder);
    EXPECT_TRUE(links.present());
}

TEST_F(Links, AMissingTableOrEntryAnswersNothing) {
    const auto expectNothing = [this] {
        EXPECT_EQ(links.getHostFolder(HostFolder::library), std::nullopt);
        EXPECT_EQ(links.variable("DWGNAME"), "");
        EXPECT_EQ(links.unitsPerMetre(), 0);
        EXPECT_EQ(links.requestLock(HostResource::library, 9), -1);
        links.releaseLock(HostResource::library, 2);
        EXPECT_TRUE(links.textStyles().empty());
        EXPECT_EQ(links.hostTitle(), "ERROR");
    };
    hostSide().noTable = true;
    expectNothing();
    hostSide().noTable = false;
    hostSide().table.fill(nullptr);
    expectNothing();
    EXPECT_TRUE(links.present());
}

TEST_F(Links, HelpNamesTheFileAndTheTopic) {
    EXPECT_EQ(links.showHelp(149), 77);
    EXPECT_EQ(hostSide().helpRequest, "0 C:\\cad\\VORDANLT.HLP 1 149");
    modules.libraries.at(programFolder + "vdhelp.dll").symbols.clear();
    EXPECT_EQ(links.showHelp(99), 0);
    modules.libraries.clear();
    EXPECT_EQ(links.showHelp(99), 0);
    // The host has loaded it from a folder of its own.
    installHost(modules, host_module::application, programFolder);
    modules.loadedModules["vdhelp.dll"] = modules.libraries.at(programFolder + "vdhelp.dll");
    modules.libraries.clear();
    EXPECT_EQ(links.showHelp(146), 77);
}

}  // namespace
}  // namespace lx
