// Reading a rich-text record, and its form in a file.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "host/rich_text.h"

/// A run as the text engine uses it. Sizes are pixels.
struct RichTextRun {
    int nHeight = 0; ///< of the characters; 0 and up, as are the next two
    int nAscent = 0;
    int nDescent = 0;
    bool bBold = false;
    bool bItalic = false;
    bool bUnderline = false;
    std::uint8_t nCharSet = 0;
    std::string face;
    std::string text; ///< lines parted by CR LF
};

/// Reads every run into `runs`, in order. False, with `runs` empty, for null and for a record that is broken
/// anywhere: no GlobalAlloc block of its own or too short a one, a wrong header size, a face or text without
/// its zero, a text handle that is dead, a size below 0 or above 32,767.
bool ReadRichText(const QXRICHEDITINFO* pInfo, std::vector<RichTextRun>& runs);

/// The form in a file: the record's bytes, then each run's text with its zero; no bytes at all for null.
/// False, with `bytes` empty, for a broken record.
bool RichTextToBytes(const QXRICHEDITINFO* pInfo, std::string& bytes);
/// Writes that form. False for a broken record and when it cannot be written; what had the name is then as it
/// was.
bool SaveRichText(const char* pszFile, const QXRICHEDITINFO* pInfo);
