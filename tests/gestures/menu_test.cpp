// The context menu: what a right press selects, what it offers, and what comes of the choice.
#include <functional>
#include <map>

#include "gesture_help.h"
#include "ops/commands/menu_table.h"
#include "platform/faults.h"

namespace {

using platform::PopupItem;

class ContextMenu : public CGestureTest {
  protected:
    ContextMenu() { stage.UseTool("CImageShadowTool"); }
    ~ContextMenu() override { platform::ClearFaults(); }

    /// The ids that are enabled, a submenu's position before its own: "103 104 4: 109 ... 8: 116 ...".
    std::string Offered() { return stage.LastMenu() ? Enabled(stage.LastMenu()->items) : "none"; }
    static std::string Enabled(const std::vector<PopupItem>& items) {
        std::string text;
        for (std::size_t n = 0; n < items.size(); ++n) {
            if (items[n].separator || items[n].grayed) {
                continue;
            }
            text += text.empty() ? "" : " ";
            text += items[n].items.empty() ? std::to_string(items[n].id)
                                           : std::to_string(n) + ":(" + Enabled(items[n].items) + ")";
        }
        return text;
    }
    /// A framed picture whose frame is hit all over.
    void Framed(const std::string& name, int nX, int nY, int nWidth, int nHeight) {
        CTxParam& tx = FramedPicture(name, nX, nY, nWidth, nHeight)->m_pFrameNode->m_tx;
        buf32Free(tx.hMask);
        tx.hMask = 0;
    }
    void Text(const std::string& name, int nX, int nY, bool bEffect) {
        TextOptions options;
        options.effect = bEffect ? TextEffect::Outline : TextEffect::None;
        stage.AddText(name, "WWWW", nX, nY, options);
    }
};

TEST_F(ContextMenu, ShowsTheTableInItsOrder) {
    Picture("A", 100, 100, 40, 30);
    stage.RightPress({110, 110});

    const platform::PopupMenu& menu = *stage.LastMenu();
    std::map<UINT, const PopupItem*> items;
    const std::function<void(const std::vector<PopupItem>&)> gather = [&](const auto& list) {
        for (const PopupItem& item : list) {
            item.items.empty() ? static_cast<void>(items[item.id] = &item) : gather(item.items);
        }
    };
    gather(menu.items);
    for (const MenuRow& row : MenuTable) {
        const auto found = items.find(static_cast<UINT>(row.nId));
        ASSERT_EQ(found != items.end(), row.pszText != nullptr) << row.nId;
        EXPECT_EQ(row.pszText ? found->second->text : "", row.pszText ? row.pszText : "");
    }
    EXPECT_EQ(menu.items[context_menu::ArrangePosition].items.size(), 4U);
    EXPECT_EQ(menu.items[context_menu::AlignPosition].items.size(), 12U);
    EXPECT_EQ(menu.flags, 258U);
    CPoint ptScreen(110, 110);
    ::ClientToScreen(stage.Desk().View()->m_hWnd, &ptScreen);
    EXPECT_EQ(CPoint(menu.screen), ptScreen);
    EXPECT_FALSE(::IsMenu(menu.menu)) << "it is gone with the press";
}

struct Row {
    const char* pszWhat;
    Names selected;
    CPoint point; ///< client pixels
    const char* pszOffered;
};

// The objects of the page, from the back: a plain picture "plain" at (20,20), "dim" at (120,20) with a
// shadow, "framed" at (220,20) with a frame of 10 round it, the placeholder "holder" at (320,20), the texts
// "text" at (20,150) and "glow" at (220,150), which has an effect; all 60 by 40 but the texts. "top" lies
// over "plain". A press on the selection keeps it, any other selects what is there.
const Row Rows[] = {
    {"nothing anywhere", {}, {200, 250}, "103 104"},
    {"a plain picture in the middle of the stack", {"plain"}, {30, 30}, "103 104 105 4:(109 110 111 112)"},
    {"the rearmost", {"back"}, {25, 105}, "103 104 105 4:(109 111)"},
    {"the front-most, shadowed", {"top"}, {65, 45}, "103 104 105 4:(110 112) 113"},
    {"unselected, so it is selected first", {}, {130, 30}, "103 104 105 4:(109 110 111 112) 113"},
    {"a frame that can go", {"framed"}, {230, 30}, "103 104 105 4:(109 110 111 112) 108"},
    {"pressed on the frame itself", {}, {214, 40}, "103 104 105 4:(109 110 111 112) 108"},
    {"a frame that follows", {"holder"}, {330, 30}, "103 104 105 4:(109 110 111 112)"},
    {"one text", {"text"}, {30, 156}, "103 104 105 4:(109 110 111 112) 114"},
    {"one text with an effect", {"glow"}, {230, 156}, "103 104 105 4:(109 110 111 112) 114 115"},
    {"two pictures",
     {"plain", "dim"},
     {30, 30},
     "103 104 105 4:(109 110 111 112) 8:(116 117 118 119 120 121 122 125 126 127) 113"},
    {"three",
     {"plain", "dim", "framed"},
     {30, 30},
     "103 104 105 4:(109 110 111 112) 8:(116 117 118 119 120 121 122 123 124 125 126 127) 108 113"},
    {"two texts",
     {"text", "glow"},
     {30, 156},
     "103 104 105 4:(109 110 111 112) 8:(116 117 118 119 120 121 122) 115"},
    {"mixed",
     {"plain", "text", "dim"},
     {30, 30},
     "103 104 105 4:(109 110 111 112) 8:(116 117 118 119 120 121 122 123 124) 113"},
    // The object on top is not selected: it alone is asked for shadow, frame and effect.
    {"on the selection, over another with a shadow",
     {"plain", "text"},
     {62, 42},
     "103 104 105 4:(109 110 111 112) 8:(116 117 118 119 120 121 122) 113"},
    {"all",
     {"back", "plain", "dim", "framed", "holder", "text", "glow", "top"},
     {30, 30},
     "103 104 105 8:(116 117 118 119 120 121 122 123 124) 108 113 115"},
};

TEST_F(ContextMenu, OffersWhatApplies) {
    Picture("back", 20, 100, 60, 40);
    Picture("plain", 20, 20, 60, 40);
    Picture("dim", 120, 20, 60, 40);
    Shadow("dim", 4, 4);
    Framed("framed", 220, 20, 60, 40);
    stage.AddPlaceholder("holder", 320, 20, 60, 40);
    Text("text", 20, 150, false);
    Text("glow", 220, 150, true);
    Picture("top", 60, 40, 40, 40);
    Shadow("top", 0, 0);
    stage.Node("top")->m_pShadowNode->Move(2, 2);
    for (const Row& row : Rows) {
        stage.Select(row.selected);
        stage.RightPress(row.point);
        EXPECT_EQ(Offered(), row.pszOffered) << row.pszWhat;
    }
}

TEST_F(ContextMenu, ObjectUnderThePointThatIsNotSelectedIsAskedForAFrameThatFollows) {
    Picture("A", 100, 100, 60, 40);
    Picture("B", 300, 100, 60, 40);
    stage.AddPlaceholder("holder", 120, 110, 20, 20);
    stage.Select({"A", "B"});
    stage.RightPress({130, 120});
    EXPECT_NE(Offered().find(" 108"), std::string::npos) << Offered();
}

TEST_F(ContextMenu, ClipboardAnswersForCopyAndPaste) {
    CPanelValues& values = stage.Desk().Panels();
    values.nCanCopy = 0;
    stage.RightPress({10, 10});
    EXPECT_EQ(Offered(), "104");
    values.nCanPaste = 2;
    stage.RightPress({10, 10});
    EXPECT_EQ(Offered(), "") << "only 1 is a yes";
}

TEST_F(ContextMenu, ExcludedNodeCountsForNothing) {
    Picture("A", 100, 100, 40, 30);
    Picture("B", 200, 100, 40, 30);
    Picture("X", 300, 100, 40, 30);
    stage.Exclude(stage.Node("X"));
    stage.Select({"B"});
    stage.RightPress({210, 110});
    EXPECT_EQ(Offered(), "103 104 105 4:(110 112)") << "the front-most but for the excluded one";
    stage.Select({"A", "B"});
    stage.RightPress({210, 110});
    EXPECT_EQ(Offered().find("4:"), std::string::npos) << "everything but the excluded one is selected";
    EXPECT_EQ(stage.PageNames(), (Names{"X", "B", "A"}));
}

TEST_F(ContextMenu, UnselectedObjectIsSelectedAsAStepAndThePanelsAreSyncedTwice) {
    Picture("A", 100, 100, 40, 30);
    Picture("B", 200, 100, 40, 30);
    stage.Select({"B"});
    stage.Calls();

    stage.RightPress({110, 110});

    EXPECT_EQ(stage.Selection(), Names{"A"});
    EXPECT_EQ(stage.UndoClasses(), Names{"CSelChangedUndoEvent"});
    Steps told;
    for (const trace::Row& row : stage.Calls()) {
        if (row.on != "1") { // the marks ask which page is showing
            told.push_back(row.on + '.' + row.op);
        }
    }
    EXPECT_EQ(told,
              (Steps{"7.3", "7.3", "7.4", "7.3", "edit:12.1", "edit:12.3", "7.3", "7.3", "7.4", "7.3"}));
    EXPECT_EQ(Screen(), FreshScreen());
    stage.Undo();
    EXPECT_EQ(stage.Selection(), Names{"B"});
}

TEST_F(ContextMenu, MissingMenuLeavesEverythingAlone) {
    Picture("A", 100, 100, 40, 30);
    platform::ArmFault("menu", false, 0);
    stage.Trace();
    stage.RightPress({110, 110}, {105, std::nullopt});
    EXPECT_TRUE(stage.Trace().empty());
    EXPECT_TRUE(stage.Selection().empty());
    EXPECT_EQ(Offered(), "none");
    platform::ClearFaults();
    stage.RightPress({110, 110});
    EXPECT_EQ(stage.PageNames(), Names{"A"}) << "the former choice is forgotten";
}

TEST_F(ContextMenu, FailedCaptureKeepsTheSelectionOrItsChangeUnrecorded) {
    Picture("A", 100, 100, 40, 30);
    platform::ArmFault("undo-event", true, 0);
    stage.RightPress({110, 110});
    EXPECT_TRUE(stage.Selection().empty());
    platform::ArmFault("undo-event", true, 1);
    stage.RightPress({110, 110});
    EXPECT_EQ(stage.Selection(), Names{"A"});
    EXPECT_TRUE(stage.UndoClasses().empty());
}

struct DismissRow {
    CPoint press;
    Names selectedAfter;
};

// The text is selected when the menu opens.
const DismissRow DismissRows[] = {
    {{380, 280}, {"text"}}, // swallowed on empty ground
    {{30, 156}, {"text"}},  // and on a selected text
    {{110, 110}, {"A"}},    // a press on an object acts
    {{212, 112}, {"B"}},    // its frame counts as the object
};

TEST_F(ContextMenu, PressThatDismissesItIsSwallowedWhereItWouldOnlyHarm) {
    for (const DismissRow& row : DismissRows) {
        Page(400, 300, 1.0);
        Picture("A", 100, 100, 40, 30);
        Framed("B", 220, 120, 40, 30);
        Text("text", 20, 150, false);
        stage.Select({"text"});
        stage.RightPress({30, 156}, {0, row.press});
        EXPECT_EQ(stage.Selection(), row.selectedAfter) << row.press.x;
        EXPECT_FALSE(HasCapture());
        EXPECT_EQ(Screen(), FreshScreen());
    }
}

TEST_F(ContextMenu, CommandsReachTheirOperations) {
    Picture("A", 100, 100, 40, 30);
    Picture("B", 210, 160, 60, 50);
    Picture("C", 300, 20, 30, 20);
    Shadow("A", 5, 5);
    const auto choose = [this](int nId) {
        stage.Select({"A", "B", "C"});
        stage.RightPress(stage.Rect("A").CenterPoint(), {nId, std::nullopt});
    };
    choose(118);
    EXPECT_EQ(stage.Rect("A").right, 330);
    choose(127);
    EXPECT_EQ(stage.Rect("C").Size(), CSize(60, 50));
    stage.Select({"A"});
    const CPoint ptOnA = stage.Rect("A").TopLeft() + CSize(3, 3);
    stage.RightPress(ptOnA, {112, std::nullopt});
    EXPECT_EQ(stage.PageNames().back(), "A.shadow");
    stage.RightPress(ptOnA, {113, std::nullopt});
    EXPECT_EQ(stage.Node("A")->m_pShadowNode, nullptr);
    stage.RightPress(ptOnA, {105, std::nullopt});
    EXPECT_EQ(stage.PageNames(), (Names{"C", "B"}));
}

} // namespace
