#pragma once

#include <string>

namespace platform {

/// Where the clipboard's text is kept. Texts hold no zero.
struct IClipboard {
    virtual bool HasText() = 0;
    /// Null when there is no text. It stays the clipboard's and is good until the next call.
    virtual const std::string* Text() = 0;
    virtual void SetText(std::string text) = 0;
    virtual void Clear() = 0;

  protected:
    ~IClipboard() = default;
};

/// Not owned. Null, the start value, stands for a clipboard of this process alone.
void SetClipboard(IClipboard* clipboard);

/// The text of the clipboard in force, without a closing zero; empty when there is none.
std::string ClipboardText();
/// As any program's copying does: replaces what there was. A zero ends the text.
void SetClipboardText(std::string text);

} // namespace platform
