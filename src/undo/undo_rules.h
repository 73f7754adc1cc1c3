// What differs between the sixteen classes of undo events: a row each, which the common steps follow.
#pragma once

#include <array>
#include <string_view>

namespace undo_rule {

/// What an event answers when the manager asks it to absorb the next one.
enum class Next { Refuses, Absorbs };
/// Whether it passes a request for the tool-tip's text to the base or answers TRUE without a text.
enum class ToolTip { Empty, OfBase };
/// Redo is undo once more, or puts the state after the change back.
enum class Redo { IsUndo, IsOwn };
/// When the undone flag changes, and how: at each step it flips; else it tells which of the two ran last
/// (TRUE after undo), or, of the frame events, that the event holds what a redo took off (TRUE after redo).
enum class Flag { FlipsBeforeGuard, FlipsAfterGuard, TellsUndoneBeforeGuard, TellsRedoneAtEnd };
/// What must be there besides the owner tool.
enum class Needs { Nothing, Document, View };
/// When the wait cursor goes up.
enum class Wait { Never, AtStart, BehindPage };
/// When the tool's page is shown: before the change, by the change itself, or behind the drawing.
enum class Page { First, InChange, Last };
/// When the class measures the area to draw: round the change, behind it, or while it makes the change.
enum class Area { Round, Behind, InChange };
/// The area is composed afresh and marked, or repainted as the cache has it.
enum class Drawing { Marked, Plain };
/// When the attribute panels are synced: never, by the change, before the notifications or behind them.
enum class Panels { Never, InChange, Before, Behind };
/// Who is told: nobody, the two notifications, or the page selector before these.
enum class Notices { None, Both, SelectorToo };

} // namespace undo_rule

struct UndoRules {
    std::string_view className;
    undo_rule::Next next;
    undo_rule::ToolTip toolTip;
    undo_rule::Redo redo;
    undo_rule::Flag flag;
    undo_rule::Needs needs;
    undo_rule::Wait wait;
    undo_rule::Page page;
    undo_rule::Area area;
    undo_rule::Drawing drawing;
    undo_rule::Panels panels;
    undo_rule::Notices notices;
};

// clang-format off
inline constexpr std::array<UndoRules, 16> UndoTable = [] {
    using namespace undo_rule;
    using enum Next;
    using enum ToolTip;
    using enum Drawing;
    constexpr auto Again = Redo::IsUndo;
    constexpr auto Own = Redo::IsOwn;
    constexpr auto Flips = Flag::FlipsBeforeGuard;
    constexpr auto FlipsLate = Flag::FlipsAfterGuard;
    constexpr auto Undone = Flag::TellsUndoneBeforeGuard;
    constexpr auto Redone = Flag::TellsRedoneAtEnd;
    constexpr auto Tool = Needs::Nothing;
    constexpr auto Doc = Needs::Document;
    constexpr auto View = Needs::View;
    constexpr auto Both = Notices::Both;
    return std::array<UndoRules, 16>{{
    //   class                               next     tool-tip  redo   flag       needs  wait              page            area            drawing  panels            notices
        {"CSelChangedUndoEvent",             Absorbs, Empty,    Again, Flips,     Doc,   Wait::Never,      Page::InChange, Area::InChange, Plain,   Panels::Before,   Notices::None},
        {"CMoveChangedUndoEvent",            Absorbs, Empty,    Again, FlipsLate, Tool,  Wait::Never,      Page::First,    Area::Round,    Marked,  Panels::Never,    Both},
        {"CResizeChangedUndoEvent",          Absorbs, Empty,    Again, Flips,     Tool,  Wait::BehindPage, Page::First,    Area::Round,    Marked,  Panels::Before,   Both},
        {"CShadowChangedUndoEvent",          Absorbs, Empty,    Again, Flips,     Tool,  Wait::Never,      Page::Last,     Area::Round,    Marked,  Panels::Never,    Both},
        {"CShadowMoveChangedUndoEvent",      Absorbs, Empty,    Again, Flips,     Tool,  Wait::Never,      Page::Last,     Area::Round,    Marked,  Panels::Never,    Both},
        {"CAddObjectUndoEvent",              Refuses, Empty,    Again, Flips,     Doc,   Wait::Never,      Page::First,    Area::InChange, Marked,  Panels::Before,   Both},
        {"CDuplicateObjectUndoEvent",        Refuses, Empty,    Again, Flips,     Doc,   Wait::Never,      Page::First,    Area::InChange, Marked,  Panels::Before,   Both},
        {"CuDeleteNodeUndoEvent",            Refuses, Empty,    Own,   Flips,     Doc,   Wait::Never,      Page::First,    Area::InChange, Marked,  Panels::Behind,   Notices::SelectorToo},
        {"CuArrangeUndoEvent",               Refuses, OfBase,   Again, FlipsLate, View,  Wait::Never,      Page::First,    Area::Round,    Marked,  Panels::Before,   Both},
        {"CuAlignUndoEvent",                 Refuses, OfBase,   Again, FlipsLate, View,  Wait::Never,      Page::First,    Area::Round,    Marked,  Panels::Before,   Both},
        {"CuRemoveShadowUndoEvent",          Refuses, OfBase,   Own,   Flips,     Tool,  Wait::Never,      Page::First,    Area::Round,    Marked,  Panels::Before,   Both},
        {"CuDisplayUndoEvent",               Refuses, Empty,    Own,   Undone,    Tool,  Wait::Never,      Page::First,    Area::Behind,   Marked,  Panels::Before,   Both},
        {"CObjectAttributeChangedUndoEvent", Absorbs, OfBase,   Again, FlipsLate, Doc,   Wait::AtStart,    Page::Last,     Area::InChange, Marked,  Panels::Before,   Both},
        {"CTextEditChangedUndoEvent",        Refuses, Empty,    Again, Flips,     Doc,   Wait::Never,      Page::First,    Area::Round,    Marked,  Panels::Before,   Both},
        {"CFrameAddUndoEvent",               Refuses, Empty,    Own,   Redone,    Tool,  Wait::Never,      Page::First,    Area::Round,    Marked,  Panels::Before,   Both},
        {"CFrameRemoveUndoEvent",            Refuses, Empty,    Own,   Redone,    Tool,  Wait::Never,      Page::First,    Area::Round,    Marked,  Panels::InChange, Both},
    }};
}();
// clang-format on

/// The row of a class by its run-time name; the table holds every class that asks.
constexpr const UndoRules& RulesOf(std::string_view className) {
    for (const UndoRules& rules : UndoTable) {
        if (rules.className == className) {
            return rules;
        }
    }
    return UndoTable.front();
}
