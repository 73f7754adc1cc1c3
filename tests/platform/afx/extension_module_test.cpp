#include "memory_shortage.h"

#include "platform/faults.h"

#include <afxext.h>

#include <gtest/gtest.h>

#include <array>

namespace {

CRuntimeClass RecordNamed(LPCSTR lpszName) {
    return {lpszName, 1, 1, nullptr, RUNTIME_CLASS(CObject), nullptr};
}

HMODULE Handle(UINT_PTR value) { return reinterpret_cast<HMODULE>(value); }

// A module as the loader sees it: raw start, its classes, initialisation, its library record.
class CFakeModule {
  public:
    CFakeModule(LPCSTR lpszFirst, LPCSTR lpszSecond, UINT_PTR handle)
        : m_classes{RecordNamed(lpszFirst), RecordNamed(lpszSecond)}, m_hModule(Handle(handle)) {}
    ~CFakeModule() { Detach(); }

    void Start() {
        AfxRawStart();
        for (CRuntimeClass& record : m_classes) {
            AfxClassInit(&record);
        }
    }
    bool Initialise() { return AfxInitExtensionModule(m_extension, m_hModule); }
    void Join() { new CDynLinkLibrary(m_extension); }
    void Attach() {
        Start();
        Initialise();
        Join();
    }
    void Detach() { AfxTermExtensionModule(m_extension); }

    AFX_EXTENSION_MODULE m_extension = {};
    std::array<CRuntimeClass, 2> m_classes;
    HMODULE m_hModule;
};

bool IsFound(LPCSTR lpszName) { return CRuntimeClass::FromName(lpszName) != nullptr; }

} // namespace

TEST(ExtensionModule, ItsClassesMoveIntoItsRecord) {
    CRuntimeClass* const pProgramClasses = AfxGetModuleState()->m_classList.GetHead();
    CFakeModule module("CPlugA", "CPlugB", 8);

    module.Start();
    ASSERT_TRUE(module.Initialise());

    EXPECT_EQ(module.m_extension.hModule, Handle(8));
    EXPECT_EQ(module.m_extension.pFirstSharedClass, &module.m_classes[1]);
    EXPECT_EQ(module.m_classes[1].m_pNextClass, &module.m_classes[0]);
    EXPECT_EQ(module.m_classes[0].m_pNextClass, nullptr);
    EXPECT_EQ(AfxGetModuleState()->m_classList.GetHead(), pProgramClasses);
    EXPECT_FALSE(IsFound("CPlugA"));
}

TEST(ExtensionModule, EndingOneLeavesTheOthers) {
    CFakeModule first("CPlugE", "CPlugF", 8);
    CFakeModule second("CPlugG", "CPlugH", 12);
    first.Attach();
    second.Attach();
    EXPECT_EQ(CRuntimeClass::FromName("CPlugE"), &first.m_classes[0]);

    first.Detach();

    EXPECT_FALSE(IsFound("CPlugE"));
    EXPECT_TRUE(IsFound("CPlugG"));
}

TEST(ExtensionModule, FailedAttachLeavesTheListsAsTheyWere) {
    CRuntimeClass* const pProgramClasses = AfxGetModuleState()->m_classList.GetHead();
    CFakeModule module("CPlugM", "CPlugN", 8);
    module.Start();

    platform::ArmFault("attach", true, 0);
    EXPECT_FALSE(module.Initialise());
    platform::ClearFaults();

    EXPECT_FALSE(module.m_extension.bInitialized);
    EXPECT_EQ(AfxGetModuleState()->m_classList.GetHead(), pProgramClasses);
    EXPECT_FALSE(IsFound("CPlugM"));
}

TEST(ExtensionModule, ResourceModuleStartedInBetweenTakesNothingAway) {
    CRuntimeClass* const pProgramClasses = AfxGetModuleState()->m_classList.GetHead();
    CFakeModule module("CPlugO", "CPlugP", 8);
    module.Start();

    AfxRawStart();
    ASSERT_TRUE(module.Initialise());

    EXPECT_EQ(module.m_extension.pFirstSharedClass, &module.m_classes[1]);
    EXPECT_EQ(AfxGetModuleState()->m_classList.GetHead(), pProgramClasses);
}

TEST(ExtensionModule, ComingBackWithoutEnteringClassesKeepsThem) {
    CFakeModule module("CPlugQ", "CPlugR", 8);
    module.Attach();
    module.Detach();

    AfxRawStart();
    module.m_hModule = Handle(16);
    ASSERT_TRUE(module.Initialise());
    module.Join();

    EXPECT_EQ(CRuntimeClass::FromName("CPlugQ"), &module.m_classes[0]);
    EXPECT_EQ(AfxGetModuleState()->m_libraryList.GetHead()->m_hModule, Handle(16));
}

TEST(ExtensionModule, LibraryRecordMayBeRefusedMemory) {
    CFakeModule module("CPlugS", "CPlugT", 8);
    module.Start();
    ASSERT_TRUE(module.Initialise());
    {
        const testing_memory::CShortageScope shortage;
        module.Join();
    }
    EXPECT_TRUE(AfxGetModuleState()->m_libraryList.IsEmpty());
}
