// What the object clipboard keeps of one node: plain values, and views of the pixels and texts.
#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <string_view>

#include "clipboard/byte_stream.h"
#include "host/img_doc.h"

/// The pixels of one buffer; all zero for none. Rows stand directly behind each other.
struct PixelRecord {
    std::int32_t nWidth = 0;
    std::int32_t nHeight = 0;
    std::int32_t nUnit = 0; ///< bytes per pixel: 1, 3 or 4
    ByteView pixels;
};

/// The attributes of a text, and what it keeps of its effect.
struct TextRecord {
    std::int32_t nFontSize = 0;
    std::int32_t nBold = 0;
    std::int32_t nItalic = 0;
    std::int32_t nUnderline = 0;
    std::int32_t nAlignment = 0;
    COLORREF crText = 0;
    std::int32_t nEffect = 0; ///< a TextEffect
    COLORREF crEffect = 0;
    std::int32_t nTextX = 0; ///< where the text stands in its picture with the effect
    std::int32_t nTextY = 0;
    PixelRecord textMask; ///< the text without the effect
    std::string_view text;
    std::string_view fontName;
};

/// The memory that pixels and texts lie in is the node's, or the bytes' that the record was read from.
struct NodeRecord {
    std::int32_t nType = 0;
    CTxParam tx;                           ///< without the mask's handle
    std::array<std::int32_t, 3> display{}; ///< brightness, contrast, transparency
    CShadowParam shadow;
    CRect rcFrame;
    CRect rcPlaceHolder;
    std::int32_t nPlaceHolderMode = 0;
    std::int32_t nFrameFollows = 0;
    std::int32_t nKeepProportions = 0;
    std::int32_t nPictureWidth = 0;
    std::int32_t nPictureHeight = 0;
    PixelRecord image;
    PixelRecord mask;
    PixelRecord sourceImage;
    PixelRecord sourceMask;
    PixelRecord mergeBuffer;
    TextRecord text; ///< of a text alone
};

NodeRecord RecordOf(const CImgNode& node);
/// Whether every value is one that a node may have: sizes, pixels, numbers that are computed with.
bool IsSound(const NodeRecord& record);
/// A node of the document as the sound record has it, in no list and without companions. Null when memory is
/// out.
std::unique_ptr<CImgNode> MakeNode(CImgDoc& doc, const NodeRecord& record);

void WriteNode(CByteWriter& writer, const NodeRecord& record);
/// A reader that failed leaves a record of no use.
void ReadNode(CByteReader& reader, NodeRecord& record);
