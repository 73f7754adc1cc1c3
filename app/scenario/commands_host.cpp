#include <algorithm>
#include <array>
#include <climits>

#include "bus/masks.h"
#include "desk/guid_text.h"
#include "desk/tool_catalog.h"
#include "platform/code_page.h"
#include "platform/display.h"
#include "platform/faults.h"
#include "scenario/commands.h"
#include "scenario/error.h"
#include "services/services_host.h"

namespace {

constexpr std::array<const char*, 23> FaultNames = {
    "attach",      "addtool",          "tool",           "display-context", "device-context",
    "window",      "bitmap",           "font",           "rich-edit",       "undo-event",
    "record",      "buffer",           "node",           "resource",        "soft-mask",
    "text-engine", "component-create", "component-read", "component-info",  "component-image",
    "copy",        "display-values",   "merge",
};

void CodePage(CRunner&, CArguments& args) {
    const int nCodePage = args.IntIn("N", 1, 65535);
    args.End();
    if (!platform::SetCodePage(static_cast<UINT>(nCodePage))) {
        args.Fail("N is no code page of the system");
    }
}

void DefaultFont(CRunner&, CArguments& args) {
    const bool bNone = args.TakeWord("none");
    const std::string name = bNone ? "" : args.Name("NAME");
    args.End();
    SetDefaultFontName(bNone ? nullptr : name.c_str());
}

void Dpi(CRunner&, CArguments& args) {
    const int nDpi = args.IntIn("N", 1, 9600);
    args.End();
    platform::SetDisplayDpi(nDpi);
}

void Fault(CRunner&, CArguments& args) {
    if (args.TakeWord("clear")) {
        args.End();
        platform::ClearFaults();
        return;
    }
    const std::string name = args.Name("NAME");
    if (std::none_of(FaultNames.begin(), FaultNames.end(),
                     [&](const char* pszKnown) { return name == pszKnown; })) {
        args.Fail("no fault is called " + name);
    }
    const bool bOnce = args.TakeWord("once");
    const int nAfter = args.TakeWord("after") ? args.IntIn("N", 0, INT_MAX) : 0;
    args.End();
    platform::ArmFault(name.c_str(), bOnce, static_cast<unsigned>(nAfter));
}

void Module(CRunner& run, CArguments& args) {
    const bool bLoad = args.OneOf("load or detach", {"load", "detach"}) == 0;
    args.End();
    if (!bLoad) {
        run.Say(run.Stage().DetachModule());
        return;
    }
    const ModuleState state = run.Stage().LoadModule();
    run.Say(state.loaded ? 1 : 0,
            {{"resource", state.resource ? "loaded" : "missing"}, {"tools", std::to_string(state.tools)}});
}

/// What `KIND[/{IFACE}]` names; the kind is a number, or `edit:` and a number.
struct BusPlace {
    GUID category = CategoryId;
    int nKind = 0;
    bool bInterface = false;
    GUID iid{};
};

BusPlace ReadBusPlace(CArguments& args) {
    const std::string text = args.Name("KIND");
    const std::size_t nSlash = text.find('/');
    std::string kindText = text.substr(0, nSlash);
    BusPlace place;
    if (kindText.rfind("edit:", 0) == 0) {
        place.category = EditCategoryId;
        kindText.erase(0, 5);
    }
    if (kindText.empty() || kindText.size() > 6 ||
        kindText.find_first_not_of("0123456789") != std::string::npos) {
        args.Fail("KIND is no kind: " + text);
    }
    place.nKind = std::stoi(kindText);
    place.bInterface = nSlash != std::string::npos;
    if (place.bInterface && !ParseGuid(text.substr(nSlash + 1), place.iid)) {
        args.Fail("IFACE is no GUID: " + text);
    }
    return place;
}

void Mask(const BusPlace& place, bool bHide) {
    if (place.bInterface) {
        (bHide ? bus::MaskInterface : bus::UnmaskInterface)(place.category, place.nKind, place.iid);
    } else {
        (bHide ? bus::MaskKind : bus::UnmaskKind)(place.category, place.nKind);
    }
}

void Bus(CRunner& run, CArguments& args) {
    const int nAction = args.OneOf("remove, restore or add", {"remove", "restore", "add"});
    if (nAction < 2) {
        const BusPlace place = ReadBusPlace(args);
        args.End();
        Mask(place, nAction == 0);
        return;
    }
    const int nKind = args.Int("KIND");
    const bool bSearches = args.TakeWord("searches");
    args.End();
    if (nKind != kind::ChangeReceiver && nKind != kind::RedrawReceiver) {
        args.Fail("KIND is neither 38 nor 45");
    }
    if (!run.Stage().BusAdd(nKind, bSearches)) {
        throw CScenarioError("no memory for the receiver");
    }
}

void Tools(CRunner& run, CArguments& args) {
    args.End();
    for (CListenerObject* pTool : run.Stage().Desk().Tools()) {
        const ToolRow* pRow = FindToolRow(pTool);
        run.Print(pRow ? pRow->identity.pszClass : "unknown");
    }
}

void AskIds(CRunner& run, CListenerObject* pTool) {
    IToolIdentity* pIdentity = CDesk::Query<IToolIdentity>(pTool);
    run.Say(1, {{"class", GuidText(pIdentity->GetToolClassId())},
                {"group", GuidText(pIdentity->GetToolGroupId())}});
}

void Ask(CRunner& run, CArguments& args) {
    const int nWhat = args.OneOf("kind, interface, state or ids", {"kind", "interface", "state", "ids"});
    CListenerObject* pTool = run.ToolNamed(args);
    if (nWhat == 3) {
        args.End();
        AskIds(run, pTool);
        return;
    }
    const GUID guid = args.Guid("GUID");
    const int nNumber = nWhat == 1 ? 0 : args.Int("N");
    args.End();
    if (nWhat == 0) {
        int nResult = 0;
        run.Say(pTool->IsKindOf(guid, nNumber, &nResult, nullptr));
    } else if (nWhat == 1) {
        void* pInterface = nullptr;
        run.Say(pTool->QueryInterface(guid, &pInterface, nullptr));
    } else {
        run.Say(pTool->QueryState(guid, nNumber));
    }
}

constexpr std::array<CommandRow, 8> Rows = {{
    {"codepage", "codepage N", CodePage, true},
    {"dpi", "dpi N", Dpi, true},
    {"default-font", "default-font NAME|none", DefaultFont, true},
    {"fault", "fault NAME [once] [after N] | fault clear", Fault, true},
    {"module", "module load|detach", Module},
    {"bus", "bus remove KIND[/{IFACE}] | bus restore KIND[/{IFACE}] | bus add 38|45 [searches]", Bus},
    {"tools", "tools", Tools},
    {"ask", "ask kind|state CLASS {GUID} N | ask interface CLASS {GUID} | ask ids CLASS", Ask},
}};

} // namespace

std::span<const CommandRow> HostCommands() { return Rows; }
