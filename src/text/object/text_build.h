// Building a text object like another one.
#pragma once

#include <memory>

#include "host/tool.h"
#include "text/object/text_attributes.h"

/// The effect of the other object: none, the same, or the same in the colour of the new text.
enum class Effect { None, Same, InTextColor };
/// The width once the effect is drawn: whatever it gives, or that of the text alone.
enum class Width { AsDrawn, Kept };
/// The other's display values: left out, taken, or taken and without them no text is made.
enum class Display { None, Taken, Required };

/// What the new text takes from the other object besides its attributes.
struct LookRule {
    Effect effect;
    Width width;
    Display display;
};

/// A text with these attributes through the tool's own `CreateTextNode`, at (0, 0). Null when it cannot be
/// made.
std::unique_ptr<CTextNode> BuildText(CTool& tool, const CString& strText, const TextAttributes& attributes);
/// The same with what the rule takes from `like`.
std::unique_ptr<CTextNode> BuildTextLike(CTool& tool, const CTextNode& like, const CString& strText,
                                         const TextAttributes& attributes, const LookRule& rule);
/// The other object's own text and attributes, without effect. Null also when its font name cannot be read.
std::unique_ptr<CTextNode> BuildPlainText(CTool& tool, const CTextNode& like);
/// The text with the other's attributes, without effect.
std::unique_ptr<CTextNode> BuildPlainText(CTool& tool, const CTextNode& like, const CString& strText);
