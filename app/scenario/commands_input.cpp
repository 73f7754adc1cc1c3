#include <array>
#include <climits>

#include "scenario/commands.h"
#include "scenario/editor_operations.h"
#include "scenario/error.h"

namespace {

Ctrl TakeCtrl(CArguments& args) { return args.TakeWord("ctrl") ? Ctrl::Down : Ctrl::Up; }

/// The commands of one point, all with `ctrl`.
using PointAction = void (CStage::*)(CPoint, Ctrl);
template <PointAction pfnAct>
void AtPoint(CRunner& run, CArguments& args) {
    const CPoint point = args.ClientPoint("X Y");
    const Ctrl ctrl = TakeCtrl(args);
    args.End();
    (run.Stage().*pfnAct)(point, ctrl);
}

void Drag(CRunner& run, CArguments& args) {
    const CPoint ptFrom = args.ClientPoint("X1 Y1");
    const CPoint ptTo = args.ClientPoint("X2 Y2");
    Ctrl ctrl = Ctrl::Up;
    int nSteps = 4;
    while (!args.AtEnd()) {
        if (args.TakeWord("steps")) {
            nSteps = args.IntIn("N", 1, 1'000'000);
        } else if (args.TakeWord("ctrl")) {
            ctrl = Ctrl::Down;
        } else {
            args.End();
        }
    }
    run.Stage().Drag(ptFrom, ptTo, ctrl, nSteps);
}

void Pointer(CRunner& run, CArguments& args) {
    const CPoint point = args.ClientPoint("X Y");
    args.End();
    run.Stage().SetPointer(point);
}

void Queue(CRunner& run, CArguments& args) {
    const int nWhat = args.OneOf("down, move, up or keydown", {"down", "move", "up", "keydown"});
    CStage& stage = run.Stage();
    if (nWhat == 3) {
        const int nKey = args.Key();
        args.End();
        stage.QueueKeyDown(nKey);
        return;
    }
    constexpr void (CStage::*Posts[])(CPoint) = {&CStage::QueuePress, &CStage::QueueMove,
                                                 &CStage::QueueRelease};
    const CPoint point = args.ClientPoint("X Y");
    args.End();
    (stage.*Posts[nWhat])(point);
}

void Pump(CRunner& run, CArguments& args) {
    const int nCount = args.AtEnd() ? -1 : args.IntIn("N", 0, INT_MAX);
    args.End();
    run.Stage().Pump(nCount);
}

void RClick(CRunner& run, CArguments& args) {
    const CPoint point = args.ClientPoint("X Y");
    MenuChoice choice;
    if (args.NextIs(TokenKind::Number)) {
        choice.id = args.IntIn("ID", 1, 65535);
    } else if (args.OneOf("ID, dismiss or dismiss-at", {"dismiss", "dismiss-at"}) == 1) {
        choice.dismissPress = args.ClientPoint("X2 Y2");
    }
    args.End();
    run.Stage().RightPress(point, choice);
}

using KeyAction = void (CStage::*)(int, Ctrl);
template <KeyAction pfnAct>
void OneKey(CRunner& run, CArguments& args) {
    const int nKey = args.Key();
    const Ctrl ctrl = TakeCtrl(args);
    args.End();
    (run.Stage().*pfnAct)(nKey, ctrl);
}

int TakeTimes(CArguments& args) {
    const std::string text = args.Name("xN");
    const bool bTimes = text.size() > 1 && text.size() < 8 && text[0] == 'x' &&
                        text.find_first_not_of("0123456789", 1) == std::string::npos;
    if (!bTimes) {
        args.Fail("xN is no count: " + text);
    }
    return std::stoi(text.substr(1));
}

void Key(CRunner& run, CArguments& args) {
    const int nKey = args.Key();
    Ctrl ctrl = Ctrl::Up;
    int nTimes = 1;
    while (!args.AtEnd()) {
        if (args.TakeWord("ctrl")) {
            ctrl = Ctrl::Down;
        } else {
            nTimes = TakeTimes(args);
        }
    }
    run.Stage().Key(nKey, nTimes, ctrl);
}

void Hold(CRunner& run, CArguments& args) {
    const int nKey = args.Key();
    KeyStates states = KeyStates::Both;
    if (!args.AtEnd()) {
        states = args.OneOf("async or sync", {"async", "sync"}) == 0 ? KeyStates::Async : KeyStates::Sync;
    }
    args.End();
    run.Stage().Hold(nKey, states);
}

void Release(CRunner& run, CArguments& args) {
    const int nKey = args.Key();
    args.End();
    run.Stage().LetGo(nKey);
}

void Type(CRunner& run, CArguments& args) {
    const std::string bytes = args.String("TEXT");
    args.End();
    run.Stage().Type(bytes);
}

void Char(CRunner& run, CArguments& args) {
    const int nCode = args.IntIn("N", 0, 65535);
    args.End();
    run.Stage().Char(static_cast<unsigned>(nCode));
}

void Wait(CRunner& run, CArguments& args) {
    const int nMilliseconds = args.IntIn("MS", 0, INT_MAX);
    args.End();
    run.Stage().Wait(static_cast<unsigned>(nMilliseconds));
}

void Focus(CRunner& run, CArguments& args) {
    const int nWhere = args.OneOf("view, editor or none", {"view", "none", "editor"});
    args.End();
    if (nWhere == 2) {
        RequireEditor(run);
        run.Stage().FocusEditor();
    } else if (nWhere == 0) {
        run.Stage().FocusView();
    } else {
        run.Stage().FocusNone();
    }
}

void Accelerator(CRunner& run, CArguments& args) {
    const int nKey = args.Key();
    const Ctrl ctrl = TakeCtrl(args);
    args.End();
    run.Stage().AddAccelerator(nKey, ctrl);
}

constexpr std::array<CommandRow, 21> Rows = {{
    {"down", "down X Y [ctrl]", AtPoint<&CStage::Press>},
    {"up", "up X Y [ctrl]", AtPoint<&CStage::Release>},
    {"move", "move X Y [ctrl]", AtPoint<&CStage::Move>},
    {"dblclk", "dblclk X Y [ctrl]", AtPoint<&CStage::SecondPress>},
    {"click", "click X Y [ctrl]", AtPoint<&CStage::Click>},
    {"dblclick", "dblclick X Y [ctrl]", AtPoint<&CStage::DblClick>},
    {"drag", "drag X1 Y1 X2 Y2 [steps N] [ctrl]", Drag},
    {"pointer", "pointer X Y", Pointer},
    {"queue", "queue down|move|up X Y | queue keydown KEY", Queue},
    {"pump", "pump [N]", Pump},
    {"rclick", "rclick X Y ID|dismiss|dismiss-at X2 Y2", RClick},
    {"keydown", "keydown KEY [ctrl]", OneKey<&CStage::KeyDown>},
    {"keyup", "keyup KEY [ctrl]", OneKey<&CStage::KeyUp>},
    {"key", "key KEY [xN] [ctrl]", Key},
    {"hold", "hold KEY [async|sync]", Hold},
    {"release", "release KEY", Release},
    {"type", "type \"TEXT\"", Type},
    {"char", "char N", Char},
    {"wait", "wait MS", Wait},
    {"focus", "focus view|editor|none", Focus},
    {"accelerator", "accelerator KEY [ctrl]", Accelerator},
}};

} // namespace

std::span<const CommandRow> InputCommands() { return Rows; }
