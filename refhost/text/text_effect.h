// The effects of texts, as the host gives and shows them.
#pragma once

#include <afxwin.h>

#include "host/buffer.h"

class CTextNode;

enum class TextEffect { None, Outline, Glow, Emboss };

/// The road to what a text node keeps of its effect.
struct CTextEffectState {
    static TextEffect KindOf(const CTextNode& node);
    static COLORREF ColorOf(const CTextNode& node);
    /// Gives the node an effect or, by None, takes it away. Drawn at the next m_fnRegenerateTextEffect.
    static void Set(CTextNode& node, TextEffect effect, COLORREF color);

    /// The text below the effect: its own coverage, 0 while the picture shows nothing else, and where that
    /// stands, in pixels of the picture as it was before any scaling.
    struct TextBelow {
        HBUF32 hMask;
        CPoint ptText;
    };
    static TextBelow Below(const CTextNode& node);
    /// Takes the buffer over; the one that was there goes.
    static void SetBelow(CTextNode& node, const TextBelow& below);

    /// Copies effect and pixels that belong to it. False when memory is out.
    static bool Copy(const CTextNode& from, CTextNode& to);
    /// Moves them; `from` has no effect afterwards.
    static void Move(CTextNode& from, CTextNode& to);
    /// Forgets the effect; the picture stays.
    static void Reset(CTextNode& node);
};
