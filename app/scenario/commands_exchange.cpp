#include <array>
#include <climits>

#include "clipboard/object_file.h"
#include "scenario/commands.h"
#include "scenario/error.h"

namespace {

void SaveObjects(const CDeskClipboard& clipboard, const std::string& file) {
    std::string error;
    if (clipboard.Content().empty()) {
        throw CScenarioError("the object clipboard is empty");
    }
    if (!SaveObjectFile(file.c_str(), clipboard.Content(), error)) {
        throw CScenarioError(file + ": " + error);
    }
}

void LoadObjects(CDeskClipboard& clipboard, const std::string& file) {
    std::vector<std::uint8_t> content;
    std::string error;
    if (!LoadObjectFile(file.c_str(), content, error)) {
        throw CScenarioError(file + ": " + error);
    }
    clipboard.SetContent(std::move(content));
}

void ClipboardObjects(CRunner& run, CArguments& args) {
    const bool bSave = args.OneOf("what to do", {"save", "load"}) == 0;
    const std::string file = args.Name("FILE");
    args.End();
    CDeskClipboard& clipboard = run.Stage().Desk().Clipboard();
    if (bSave) {
        SaveObjects(clipboard, file);
    } else {
        LoadObjects(clipboard, file);
    }
    run.Say(1);
}

void Clipboard(CRunner& run, CArguments& args) {
    if (args.TakeWord("objects")) {
        ClipboardObjects(run, args);
        return;
    }
    const std::string text = args.String("TEXT");
    args.End();
    run.Stage().SetClipboard(text);
}

DropOffer TakeOffer(CArguments& args) {
    DropOffer offer;
    while (!args.AtEnd()) {
        if (args.TakeWord("ctrl")) {
            offer.ctrl = Ctrl::Down;
        } else if (args.TakeWord("source")) {
            offer.source = static_cast<DWORD>(args.IntIn("N", 0, INT_MAX));
        } else if (args.TakeWord("format")) {
            offer.format = static_cast<UINT>(args.IntIn("N", 0, 65535));
        } else {
            args.End();
        }
    }
    return offer;
}

void SayDrop(CRunner& run, const DropAnswer& answer) {
    run.Say(answer.result, {{"effect", std::to_string(answer.effect)}});
}

using Offering = DropAnswer (CStage::*)(const std::string&, CPoint, const DropOffer&);
template <Offering pfnOffer>
void OfferText(CRunner& run, CArguments& args) {
    const std::string text = args.String("TEXT");
    const CPoint point = args.ClientPoint("X Y");
    const DropOffer offer = TakeOffer(args);
    SayDrop(run, (run.Stage().*pfnOffer)(text, point, offer));
}

void Leave(CRunner& run, CArguments& args) {
    args.End();
    run.Stage().LeaveDrop();
}

void DragText(CRunner& run, CArguments& args) {
    const CPoint ptFrom = args.ClientPoint("X1 Y1");
    const CPoint ptTo = args.ClientPoint("X2 Y2");
    const Ctrl ctrl = args.TakeWord("ctrl") ? Ctrl::Down : Ctrl::Up;
    args.End();
    SayDrop(run, run.Stage().DragText(ptFrom, ptTo, ctrl));
}

constexpr std::array<CommandRow, 5> Rows = {{
    {"clipboard", "clipboard \"TEXT\" | clipboard objects save FILE | load FILE", Clipboard},
    {"drop", "drop \"TEXT\" X Y [ctrl] [source N] [format N]", OfferText<&CStage::Drop>},
    {"hover", "hover \"TEXT\" X Y [ctrl] [source N] [format N]", OfferText<&CStage::Hover>},
    {"leave", "leave", Leave},
    {"dragtext", "dragtext X1 Y1 X2 Y2 [ctrl]", DragText},
}};

} // namespace

std::span<const CommandRow> ExchangeCommands() { return Rows; }
