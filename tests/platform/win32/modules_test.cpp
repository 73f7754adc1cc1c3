#include "platform/faults.h"
#include "platform/modules.h"

#include <gtest/gtest.h>
#include <windows.h>

#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

namespace fs = std::filesystem;

namespace {

int g_rawStarts;

} // namespace

/// Builds small modules in a folder of its own.
class Modules : public testing::Test {
  protected:
    Modules() : m_folder(fs::temp_directory_path() / ("win32_modules_" + std::to_string(getpid()))) {
        fs::create_directories(m_folder);
        g_rawStarts = 0;
        platform::SetRawStartHook([] { ++g_rawStarts; });
    }
    ~Modules() override {
        platform::SetRawStartHook(nullptr);
        platform::ClearFaults();
        fs::remove_all(m_folder);
    }

    /// The path of a module made of this C++ text.
    std::string Build(const std::string& name, const std::string& text, const fs::path& folder = {}) {
        const fs::path source = m_folder / (name + ".cpp");
        const fs::path module = (folder.empty() ? m_folder : folder) / name;
        std::ofstream(source) << text;
        const std::string command =
            "c++ -shared -fPIC -o '" + module.string() + "' '" + source.string() + "'";
        EXPECT_EQ(std::system(command.c_str()), 0);
        return module.string();
    }
    /// A module that writes its attaching and detaching into the log.
    std::string BuildAttaching(const std::string& name, int answer) {
        return Build(name, R"(#include <cstdio>
extern "C" int DllMain(void*, unsigned reason, void*) {
    if (FILE* f = std::fopen(")" +
                               LogPath() + R"(", "a")) {
        std::fputs(reason == 1 ? "attach " : "detach ", f);
        std::fclose(f);
    }
    return )" + std::to_string(answer) +
                               R"(;
}
extern "C" int Answer() { return 42; }
)");
    }
    std::string LogPath() const { return (m_folder / "log").string(); }
    std::string Log() const {
        std::ifstream file(LogPath());
        return {std::istreambuf_iterator<char>(file), {}};
    }

    fs::path m_folder;
};

TEST_F(Modules, AttachOnceAndDetachAtTheLastRelease) {
    const std::string path = BuildAttaching("Counted.dll", 1);

    const HMODULE first = LoadLibraryA(path.c_str());
    const HMODULE second = LoadLibraryA(path.c_str());
    EXPECT_NE(first, nullptr);
    EXPECT_EQ(first, second);
    EXPECT_EQ(g_rawStarts, 1);
    EXPECT_TRUE(FreeLibrary(first));
    EXPECT_EQ(Log(), "attach ");
    EXPECT_TRUE(FreeLibrary(first));

    EXPECT_EQ(Log(), "attach detach ");
    EXPECT_FALSE(FreeLibrary(first));
    EXPECT_EQ(GetModuleHandleA(path.c_str()), nullptr);
}

TEST_F(Modules, RefusedAttachClosesTheModule) {
    const std::string path = BuildAttaching("Refusing.dll", 0);

    EXPECT_EQ(LoadLibraryA(path.c_str()), nullptr);

    EXPECT_EQ(GetLastError(), ERROR_DLL_INIT_FAILED);
    EXPECT_EQ(GetModuleHandleA(path.c_str()), nullptr);
    EXPECT_EQ(LoadLibraryA(path.c_str()), nullptr);
    EXPECT_EQ(Log(), "attach attach ");
}

TEST_F(Modules, ExportsAreFoundByName) {
    const HMODULE module = LoadLibraryA(BuildAttaching("Named.dll", 1).c_str());

    const auto answer = reinterpret_cast<int (*)()>(GetProcAddress(module, "Answer"));
    ASSERT_NE(answer, nullptr);
    EXPECT_EQ(answer(), 42);
    EXPECT_EQ(GetProcAddress(module, "Question"), nullptr);

    FreeLibrary(module);
    EXPECT_EQ(GetProcAddress(module, "Answer"), nullptr);
}

TEST_F(Modules, RichEditLibraryIsThereAndOutlivesItsReleases) {
    const HMODULE library = LoadLibraryA("RICHED32.DLL");
    EXPECT_NE(library, nullptr);
    EXPECT_NE(library, GetModuleHandleA(nullptr));

    for (int i = 0; i < 3; ++i) {
        EXPECT_TRUE(FreeLibrary(library));
    }

    EXPECT_EQ(LoadLibraryA("Riched32.dll"), library);
    EXPECT_EQ(GetModuleHandleA("RICHED32.DLL"), library);
    EXPECT_EQ(g_rawStarts, 0);
}

TEST_F(Modules, MissingFileAndFileThatIsNoModuleDiffer) {
    const std::string text = (m_folder / "Text.dll").string();
    std::ofstream(text) << "no module";

    const std::pair<const char*, DWORD> rows[] = {{"/nowhere/Missing.dll", ERROR_FILE_NOT_FOUND},
                                                  {"NowhereNearHere.dll", ERROR_FILE_NOT_FOUND},
                                                  {text.c_str(), ERROR_MOD_NOT_FOUND},
                                                  {nullptr, ERROR_INVALID_PARAMETER}};
    for (const auto& [path, error] : rows) {
        EXPECT_EQ(LoadLibraryA(path), nullptr);
        EXPECT_EQ(GetLastError(), error) << (path ? path : "no name");
    }
}

TEST_F(Modules, BareNameIsLookedForBesideTheCaller) {
    char name[MAX_PATH];
    ASSERT_GT(GetModuleFileNameA(nullptr, name, sizeof name), 0U);
    const std::string path = Build("BesideTheCaller.dll", "int here;", fs::path(name).parent_path());

    const HMODULE module = LoadLibrary("BesideTheCaller.dll");

    EXPECT_EQ(GetModuleFileNameA(module, name, sizeof name), path.size());
    EXPECT_EQ(name, path);
    EXPECT_EQ(GetModuleFileNameA(module, name, 4), 3U);
    EXPECT_EQ(name[3], '\0');
    EXPECT_TRUE(FreeLibrary(module));
    fs::remove(path);
}

TEST_F(Modules, ResourceFaultIsForModulesWithoutEntryPoint) {
    const std::string plain = Build("Plain.dll", "int nothing;");
    const std::string attaching = BuildAttaching("Attaching.dll", 1);
    platform::ArmFault("resource", false, 0);

    EXPECT_EQ(LoadLibraryA(plain.c_str()), nullptr);
    EXPECT_TRUE(FreeLibrary(LoadLibraryA(attaching.c_str())));

    platform::ClearFaults();
    EXPECT_TRUE(FreeLibrary(LoadLibraryA(plain.c_str())));
}
