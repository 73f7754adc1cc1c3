// The built module file: what it exports, which tools it hands over, and how it comes and goes.
#include <cxxabi.h>
#include <elf.h>

#include <array>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <iterator>
#include <memory>
#include <set>

#include "host/tool_category.h"
#include "module_help.h"
#include "platform/faults.h"

namespace {

constexpr char ModuleFile[] = "PradixTools.dll";
constexpr char ResourceFile[] = "PradixRC.dll";

std::vector<char> BytesBesideProgram(const std::string& name) {
    char path[MAX_PATH] = {};
    ::GetModuleFileNameA(nullptr, path, sizeof(path));
    const std::string folder = std::string(path).substr(0, std::string(path).rfind('/') + 1);
    std::ifstream file(folder + name, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

/// The names that the dynamic symbol table defines for others.
std::set<std::string> ExportedNames(const std::vector<char>& elf) {
    std::set<std::string> names;
    const auto* pHeader = reinterpret_cast<const Elf64_Ehdr*>(elf.data());
    const auto* pSections = reinterpret_cast<const Elf64_Shdr*>(elf.data() + pHeader->e_shoff);
    for (int n = 0; n < pHeader->e_shnum; ++n) {
        const Elf64_Shdr& section = pSections[n];
        if (section.sh_type != SHT_DYNSYM) {
            continue;
        }
        const char* pNames = elf.data() + pSections[section.sh_link].sh_offset;
        const auto* pSymbol = reinterpret_cast<const Elf64_Sym*>(elf.data() + section.sh_offset);
        for (std::size_t i = 0; i < section.sh_size / sizeof(Elf64_Sym); ++i, ++pSymbol) {
            if (pSymbol->st_shndx != SHN_UNDEF && ELF64_ST_BIND(pSymbol->st_info) != STB_LOCAL) {
                names.insert(pNames + pSymbol->st_name);
            }
        }
    }
    return names;
}

/// As a person writes the name, without arguments; C names stay.
std::string ReadableName(const std::string& name) {
    int nStatus = 0;
    const std::unique_ptr<char, decltype(&std::free)> text(
        abi::__cxa_demangle(name.c_str(), nullptr, nullptr, &nStatus), &std::free);
    const std::string readable = text ? text.get() : name;
    return readable.substr(0, readable.find('('));
}

/// Whether it is a member, a thunk or the run-time data of the exported class.
bool IsEditorsOwn(const std::string& readable) {
    static const std::set<std::string> data = {"vtable for CInplaceEditor", "typeinfo for CInplaceEditor",
                                               "typeinfo name for CInplaceEditor"};
    const std::string thunk = "non-virtual thunk to ";
    const std::string member = readable.substr(readable.rfind(thunk, 0) == 0 ? thunk.size() : 0);
    return data.count(readable) == 1 || member.rfind("CInplaceEditor::", 0) == 0;
}

/// What a host reaches of the editor by name, without the class's name before it.
constexpr std::array EditorOperations = {
    "CInplaceEditor",
    "~CInplaceEditor",
    "m_fnCenterWindow",
    "m_fnConvertFontPixelToNearestPoint",
    "m_fnConvertFontPointToPixel",
    "m_fnCreate",
    "m_fnEndInput",
    "m_fnGetBuffer",
    "m_fnGetDispdpi",
    "m_fnGetFontName",
    "m_fnGetFontSizeInPoint",
    "m_fnGetRichText",
    "m_fnGetSelectedText",
    "m_fnGetText",
    "m_fnGetText2",
    "m_fnGetTextBoundRect",
    "m_fnMoveCursorTo",
    "m_fnPix2Twip",
    "m_fnReplaceSelectRange",
    "m_fnSetFont",
    "m_fnSetFontColor",
    "m_fnSetFontSizeInPixel",
    "m_fnSetFontSizeInPoint",
    "m_fnSetFontStyle",
    "m_fnSetSelectRange",
    "m_fnSetText",
    "m_fnSetTextAlignType",
    "m_fnTwip2Pix",
};

/// A host that keeps what it is handed and says no to everything.
class CRefusingCategory : public IToolCategory {
  public:
    int AddTool(CListenerObject* pTool) override {
        tools.emplace_back(pTool);
        return 0;
    }
    std::vector<std::unique_ptr<CListenerObject>> tools;
};

/// The module, loaded without a host around it.
class CLoadedModule {
  public:
    CLoadedModule() : m_hModule(::LoadLibraryA(ModuleFile)) {}
    ~CLoadedModule() {
        if (m_hModule) {
            ::FreeLibrary(m_hModule);
        }
    }
    bool IsLoaded() const { return m_hModule != nullptr; }
    int Hand(IToolCategory* pCategory) const {
        FARPROC pfnEntry = ::GetProcAddress(m_hModule, "g_fnLoadAndLinkToolCat");
        return reinterpret_cast<LoadAndLinkToolCat>(reinterpret_cast<void*>(pfnEntry))(pCategory);
    }

  private:
    HMODULE m_hModule;
};

void UnloadResources() {
    while (HMODULE hResources = ::GetModuleHandleA(ResourceFile)) {
        ::FreeLibrary(hResources);
    }
}

class ModuleEntry : public testing::Test {
  protected:
    ~ModuleEntry() override { platform::ClearFaults(); }
};

/// The data 3 of each class GUID tells the eleven apart.
constexpr std::array<unsigned, 11> ClassIdsInOrder = {
    0x9AA7E4FC, 0xB8902073, 0x92D8EFCF, 0xC40C512D, 0x3B2D708E, 0x55A27504,
    0x10C2C978, 0xAFCFC1E0, 0x9ED96494, 0xCFB78B20, 0x54CA0DCA,
};

std::vector<unsigned> ClassIds(const CRefusingCategory& category) {
    std::vector<unsigned> ids;
    for (const auto& pTool : category.tools) {
        ids.push_back(CDesk::Query<IToolIdentity>(pTool.get())->GetToolClassId().Data1);
    }
    return ids;
}

TEST_F(ModuleEntry, ExportsTheEntryTheLoadersAndTheEditorAlone) {
    const std::vector<char> elf = BytesBesideProgram(ModuleFile);
    ASSERT_GT(elf.size(), sizeof(Elf64_Ehdr));
    ASSERT_EQ(std::memcmp(elf.data(), ELFMAG, SELFMAG), 0);

    std::set<std::string> others;
    std::set<std::string> editors;
    for (const std::string& name : ExportedNames(elf)) {
        const std::string readable = ReadableName(name);
        (IsEditorsOwn(readable) ? editors : others).insert(readable);
    }

    EXPECT_EQ(others, (std::set<std::string>{"DllMain", "g_fnLoadAndLinkToolCat"}));
    for (const char* pszName : EditorOperations) {
        EXPECT_EQ(editors.count(std::string("CInplaceEditor::") + pszName), 1U) << pszName;
    }
    EXPECT_EQ(editors.count("vtable for CInplaceEditor") + editors.count("typeinfo for CInplaceEditor"), 2U);
}

TEST_F(ModuleEntry, HandsElevenToolsOverInOrderThoughEachIsRefused) {
    CLoadedModule loaded;
    CRefusingCategory category;

    EXPECT_EQ(loaded.Hand(&category), 1);

    EXPECT_EQ(ClassIds(category), std::vector<unsigned>(ClassIdsInOrder.begin(), ClassIdsInOrder.end()));
}

TEST_F(ModuleEntry, ToolWithoutMemoryEndsItWithZeroAndKeepsTheEarlierOnes) {
    CLoadedModule loaded;
    for (unsigned n = 0; n < ClassIdsInOrder.size(); ++n) {
        CRefusingCategory category;
        platform::ArmFault("tool", true, n);

        EXPECT_EQ(loaded.Hand(&category), 0) << n;

        EXPECT_EQ(ClassIds(category),
                  std::vector<unsigned>(ClassIdsInOrder.begin(), ClassIdsInOrder.begin() + n));
    }
}

TEST_F(ModuleEntry, NullCategoryIsRefused) {
    CLoadedModule loaded;

    EXPECT_EQ(loaded.Hand(nullptr), 0);
}

TEST_F(ModuleEntry, CanBeCalledAgain) {
    CLoadedModule loaded;
    CRefusingCategory first;
    CRefusingCategory second;
    loaded.Hand(&first);

    EXPECT_EQ(loaded.Hand(&second), 1);

    EXPECT_EQ(second.tools.size(), 11U);
}

TEST_F(ModuleEntry, RefusedByTheFrameworkItIsNotLoaded) {
    UnloadResources();
    platform::ArmFault("attach", false, 0);

    CLoadedModule loaded;

    EXPECT_FALSE(loaded.IsLoaded());
    EXPECT_EQ(::GetModuleHandleA(ModuleFile), nullptr);
    EXPECT_EQ(::GetModuleHandleA(ResourceFile), nullptr) << "nothing further is done";
}

TEST_F(ModuleEntry, DoesWithoutItsResources) {
    UnloadResources();
    CStage stage;
    platform::ArmFault("resource", false, 0);

    const ModuleState state = stage.LoadModule();

    EXPECT_TRUE(state.loaded);
    EXPECT_FALSE(state.resource);
    EXPECT_EQ(state.tools, 11);
}

TEST_F(ModuleEntry, LeavesItsResourcesLoadedWhenItGoes) {
    CStage stage;
    stage.LoadModule();

    EXPECT_EQ(stage.DetachModule(), 1);

    EXPECT_EQ(::GetModuleHandleA(ModuleFile), nullptr);
    EXPECT_NE(::GetModuleHandleA(ResourceFile), nullptr);
}

} // namespace
