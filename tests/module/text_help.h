// A user who writes on the page, and what lives meanwhile.
#pragma once

#include <cstddef>
#include <string>

#include "host/text_node.h"
#include "module_help.h"
#include "text/editor/inplace_editor.h"

/// What a forgotten clean-up would add to.
struct Living {
    std::size_t nodes;
    std::size_t buffers;
    unsigned globalBlocks;
    unsigned gdiObjects;
    unsigned windows;
    std::size_t undoEvents;
    bool operator==(const Living&) const = default;
};
void PrintTo(const Living& living, std::ostream* pOut);

/// The page of 720 by 480 with the text tool current.
class CTextStage : public CModuleStage {
  public:
    explicit CTextStage(const std::string& tool = "CTextTool") : CModuleStage(tool) {}
    ~CTextStage();

    CTextNode& Text(const std::string& name);
    /// An opaque frame round the object; its placeholder lies 5 inside the edges.
    CImgNode* Frame(const std::string& object, const CRect& rcFrame);
    /// A shadow as the tools make one: (3, 4), softness 2, transparency 30, #204060.
    void RealShadow(const std::string& object);

    /// Selects the object and opens it as the edit command does, the caret at its top-left corner.
    int Edit(const std::string& name);
    /// Puts another text into the open editor.
    void WriteInEditor(const std::string& text);
    /// The text's rectangle of the open editor, client pixels.
    CRect EditorRect();
    /// All of a double-click and the typing behind it.
    void WriteAt(CPoint point, const std::string& text);

    static Living CountLiving();
};

/// The picture of lines in Arial: a blank wider on both sides and a pixel higher above and below.
CSize PictureSize(const Lines& lines, int nPixelSize, int nStyle = 0);
