// A user at a host with the tools loaded, and what the host was told, in short words.
#pragma once

#include <ostream>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "host/kinds.h"
#include "host/tool.h"
#include "host/tool_interfaces.h"
#include "stage.h"

inline std::ostream& operator<<(std::ostream& out, const RECT& rc) {
    return out << '[' << rc.left << ',' << rc.top << ',' << rc.right << ',' << rc.bottom << ']';
}

using Lines = std::vector<std::string>;

/// The client rectangle's pixels of the view, row by row, as a person sees them.
using Pixels = std::vector<COLORREF>;

/// A page of 720 by 480 over #505050 with the select tool current.
class CModuleStage : public CStage {
  public:
    explicit CModuleStage(const std::string& tool = "CSelectTool");

    /// A red picture of 40 by 40 document units.
    CImgNode* Square(const std::string& name, int nX, int nY);
    /// A text object without pixels of its own, 40 by 40 document units.
    CImgNode* TextBox(const std::string& name, int nX, int nY);
    /// A shadow of the object's size, moved by (nDx, nDy); behind the object.
    CImgNode* Shadow(const std::string& object, int nDx, int nDy);

    IToolInput& Input(const std::string& tool = "");
    IToolObjectOps& Ops(const std::string& tool = "");
    CTool& Main() { return *AsTool(CurrentTool()); }
    /// Presses without a window message, for the answer.
    int PressAnswer(CPoint point);

    /// What the tools told the host since the last asking: "flush L T R B", "repaint L T R B erase|keep",
    /// "read L T R B" and "write X Y" (the display cache), "invalidate L T R B", "record CLASS",
    /// "selection.OP NODE", "objects.OP NODE…", and for bus objects "interface.OP ARGS…".
    Lines Told();
    /// Those of the bus objects alone.
    Lines ToldOnBus();
    void Forget() { Told(); }

    CRect SelectionRect();
    CRect OutlineRect();
    bool HasCapture() const;
    /// The system id of the cursor now shown; 0 unless it is also the view's class cursor.
    unsigned Cursor() const;
    /// The cursor with the pointer there.
    unsigned CursorAt(CPoint point);
    Pixels View();
    /// Whether the view equals the page composed afresh with its marks.
    bool ShowsTruePicture();
    /// The owner tool's class of the newest event of the stack and whether it is undone: "CLASS undone|done".
    std::string NewestUndo() const;
    std::string NewestRedo() const;

    void HideKind(int nKind);
    void ShowKind(int nKind);
    template <class Interface>
    void HideInterface(int nKind) {
        HideInterfaceOf(nKind, Interface::Id);
    }
    /// The next asking for an undo event (the `nAfter`-th from 0) finds no memory.
    void FailUndoEvent(unsigned nAfter);

  private:
    static void HideInterfaceOf(int nKind, const GUID& iid);
    std::string LineOf(const trace::Row& row);
    std::string ValueText(const trace::Value& value);
};
