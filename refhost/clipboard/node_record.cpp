#include "clipboard/node_record.h"

#include <cmath>
#include <cstring>
#include <limits>

#include "buffer/buffer_host.h"
#include "host/text_node.h"
#include "text/text_effect.h"

namespace {

constexpr std::int32_t MostSide = 32767;
constexpr std::int64_t MostPixels = std::int64_t{1} << 27;
constexpr std::size_t MostTextBytes = std::size_t{1} << 30;
constexpr std::int32_t ColorBytes = 3;
constexpr std::int32_t MaskBytes = 1;

bool IsBetween(std::int32_t nValue, std::int32_t nLeast, std::int32_t nMost) {
    return nValue >= nLeast && nValue <= nMost;
}

bool IsSize(std::int32_t nWidth, std::int32_t nHeight, std::int32_t nLeast) {
    return IsBetween(nWidth, nLeast, MostSide) && IsBetween(nHeight, nLeast, MostSide);
}

PixelRecord PixelsOf(HBUF32 hBuf) {
    const buffer_host::View view = buffer_host::Look(hBuf);
    const std::size_t nBytes = view.RowBytes() * static_cast<std::size_t>(view.height);
    return {view.width, view.height, view.unit, ByteView(view.pixels, nBytes)};
}

std::string_view BytesOf(const CString& str) {
    return {static_cast<LPCSTR>(str), static_cast<std::size_t>(str.GetLength())};
}

CString StringOf(std::string_view bytes) { return CString(bytes.data(), static_cast<int>(bytes.size())); }

bool IsNone(const PixelRecord& record) {
    return record.nWidth == 0 && record.nHeight == 0 && record.nUnit == 0 && record.pixels.empty();
}

bool HasItsLength(const PixelRecord& record) {
    const std::int64_t nPixels = std::int64_t{record.nWidth} * record.nHeight;
    return IsSize(record.nWidth, record.nHeight, 1) && nPixels <= MostPixels &&
           static_cast<std::uint64_t>(nPixels * record.nUnit) == record.pixels.size();
}

bool IsSoundPicture(const PixelRecord& record, std::int32_t nUnit) {
    return IsNone(record) || (record.nUnit == nUnit && HasItsLength(record));
}

bool IsSoundPicture(const PixelRecord& record) {
    return IsSoundPicture(record, MaskBytes) || IsSoundPicture(record, ColorBytes) ||
           IsSoundPicture(record, 4);
}

/// Shadows are built from the settings' whole parts.
bool IsWholePartInRange(double dValue) { return std::abs(dValue) <= std::numeric_limits<LONG>::max(); }

bool IsSound(const CShadowParam& shadow) {
    return IsWholePartInRange(shadow.dOffsetX) && IsWholePartInRange(shadow.dOffsetY) &&
           IsWholePartInRange(shadow.dSoftness);
}

bool IsSound(const TextRecord& text) {
    return IsBetween(text.nFontSize, 0, MostSide) &&
           IsBetween(text.nEffect, 0, static_cast<std::int32_t>(TextEffect::Emboss)) &&
           IsBetween(text.nTextX, -MostSide, MostSide) && IsBetween(text.nTextY, -MostSide, MostSide) &&
           text.text.size() <= MostTextBytes && text.fontName.size() <= MostTextBytes &&
           IsSoundPicture(text.textMask, MaskBytes);
}

TextRecord TextRecordOf(const CTextNode& node) {
    const CTextEffectState::TextBelow below = CTextEffectState::Below(node);
    return {node.m_nFontSize,
            node.m_nBold,
            node.m_nItalic,
            node.m_nUnderline,
            node.m_nAlignment,
            node.m_crText,
            static_cast<std::int32_t>(CTextEffectState::KindOf(node)),
            CTextEffectState::ColorOf(node),
            below.ptText.x,
            below.ptText.y,
            PixelsOf(below.hMask),
            BytesOf(node.m_strText),
            BytesOf(node.m_strFontName)};
}

/// False when memory is out; nothing asked for is no failure.
bool MakeBuffer(const PixelRecord& record, HBUF32& hBuf) {
    if (record.pixels.empty()) {
        return true;
    }
    if (!buf32Alloc(&hBuf, record.nUnit * 8, record.nWidth, record.nHeight, 0, nullptr)) {
        return false;
    }
    std::memcpy(buffer_host::Look(hBuf).pixels, record.pixels.data(), record.pixels.size());
    return true;
}

bool GiveText(CTextNode& node, const TextRecord& record) {
    node.m_nFontSize = record.nFontSize;
    node.m_nBold = record.nBold;
    node.m_nItalic = record.nItalic;
    node.m_nUnderline = record.nUnderline;
    node.m_nAlignment = record.nAlignment;
    node.m_crText = record.crText;
    node.m_strText = StringOf(record.text);
    node.m_strFontName = StringOf(record.fontName);
    HBUF32 hMask = 0;
    const bool bMade = MakeBuffer(record.textMask, hMask);
    CTextEffectState::Set(node, static_cast<TextEffect>(record.nEffect), record.crEffect);
    CTextEffectState::SetBelow(node, {hMask, CPoint(record.nTextX, record.nTextY)});
    return bMade;
}

void GiveValues(CImgNode& node, const NodeRecord& record) {
    node.m_nType = record.nType;
    node.m_tx = record.tx;
    node.m_nBrightness = record.display[0];
    node.m_nContrast = record.display[1];
    node.m_nTransparency = record.display[2];
    node.m_shadow = record.shadow;
    node.m_rcFrame = record.rcFrame;
    node.m_rcPlaceHolder = record.rcPlaceHolder;
    node.m_nPlaceHolderMode = record.nPlaceHolderMode;
    node.m_nFrameFollows = record.nFrameFollows;
    node.m_nKeepProportions = record.nKeepProportions;
    node.m_nPictureWidth = record.nPictureWidth;
    node.m_nPictureHeight = record.nPictureHeight;
}

bool GivePictures(CImgNode& node, const NodeRecord& record) {
    return MakeBuffer(record.image, node.m_hImage) && MakeBuffer(record.mask, node.m_tx.hMask) &&
           MakeBuffer(record.sourceImage, node.m_hTransSrcImage) &&
           MakeBuffer(record.sourceMask, node.m_hTransSrcMask) &&
           MakeBuffer(record.mergeBuffer, node.m_hMergeBuf);
}

// From here on each list of fields stands once, for both ways: the stream is a writer with constant records
// or a reader.

template <class TStream, class... TNumbers>
void TransferNumbers(TStream& stream, TNumbers&... numbers) {
    (stream.Number(numbers), ...);
}

template <class TStream, class TRect>
void TransferRect(TStream& stream, TRect& rect) {
    TransferNumbers(stream, rect.left, rect.top, rect.right, rect.bottom);
}

template <class TStream, class TPixels>
void TransferPixels(TStream& stream, TPixels& record) {
    TransferNumbers(stream, record.nWidth, record.nHeight, record.nUnit);
    stream.Counted(record.pixels);
}

// The mask's handle is left out: it means nothing elsewhere.
template <class TStream, class TBlock>
void TransferBlock(TStream& stream, TBlock& tx) {
    TransferNumbers(stream, tx.nX, tx.nY, tx.nWidth, tx.nHeight, tx.nOrgWidth, tx.nOrgHeight, tx.nMaskScale,
                    tx.nOffsetFlag, tx.nOffsetX, tx.nOffsetY, tx.nAngle, tx.nSkewX, tx.nSkewY, tx.nMode);
}

template <class TStream, class TShadow>
void TransferShadow(TStream& stream, TShadow& shadow) {
    stream.Real(shadow.dOffsetX);
    stream.Real(shadow.dOffsetY);
    stream.Real(shadow.dSoftness);
    TransferNumbers(stream, shadow.nTransparency, shadow.crColor);
}

template <class TStream, class TText>
void TransferText(TStream& stream, TText& text) {
    TransferNumbers(stream, text.nFontSize, text.nBold, text.nItalic, text.nUnderline, text.nAlignment,
                    text.crText, text.nEffect, text.crEffect, text.nTextX, text.nTextY);
    TransferPixels(stream, text.textMask);
    stream.Counted(text.text);
    stream.Counted(text.fontName);
}

template <class TStream, class TRecord>
void TransferNode(TStream& stream, TRecord& record) {
    stream.Number(record.nType);
    TransferBlock(stream, record.tx);
    TransferNumbers(stream, record.display[0], record.display[1], record.display[2]);
    TransferShadow(stream, record.shadow);
    TransferRect(stream, record.rcFrame);
    TransferRect(stream, record.rcPlaceHolder);
    TransferNumbers(stream, record.nPlaceHolderMode, record.nFrameFollows, record.nKeepProportions,
                    record.nPictureWidth, record.nPictureHeight);
    for (auto* pPixels :
         {&record.image, &record.mask, &record.sourceImage, &record.sourceMask, &record.mergeBuffer}) {
        TransferPixels(stream, *pPixels);
    }
    if (record.nType == node_type::Text) {
        TransferText(stream, record.text);
    }
}

} // namespace

NodeRecord RecordOf(const CImgNode& node) {
    NodeRecord record{node.m_nType,
                      node.m_tx,
                      {node.m_nBrightness, node.m_nContrast, node.m_nTransparency},
                      node.m_shadow,
                      node.m_rcFrame,
                      node.m_rcPlaceHolder,
                      node.m_nPlaceHolderMode,
                      node.m_nFrameFollows,
                      node.m_nKeepProportions,
                      node.m_nPictureWidth,
                      node.m_nPictureHeight,
                      PixelsOf(node.m_hImage),
                      PixelsOf(node.m_tx.hMask),
                      PixelsOf(node.m_hTransSrcImage),
                      PixelsOf(node.m_hTransSrcMask),
                      PixelsOf(node.m_hMergeBuf),
                      {}};
    record.tx.hMask = 0;
    if (node.m_nType == node_type::Text) {
        record.text = TextRecordOf(static_cast<const CTextNode&>(node));
    }
    return record;
}

bool IsSound(const NodeRecord& record) {
    return IsSize(record.tx.nWidth, record.tx.nHeight, 0) &&
           IsSize(record.nPictureWidth, record.nPictureHeight, 0) && IsSound(record.shadow) &&
           IsSoundPicture(record.image, ColorBytes) && IsSoundPicture(record.mask, MaskBytes) &&
           IsSoundPicture(record.sourceImage, ColorBytes) && IsSoundPicture(record.sourceMask, MaskBytes) &&
           IsSoundPicture(record.mergeBuffer) && IsSound(record.text);
}

std::unique_ptr<CImgNode> MakeNode(CImgDoc& doc, const NodeRecord& record) {
    const bool bText = record.nType == node_type::Text;
    std::unique_ptr<CImgNode> pNode(bText ? new CTextNode(&doc) : new CImgNode(&doc));
    if (!pNode) {
        return nullptr;
    }
    GiveValues(*pNode, record);
    const bool bMade =
        GivePictures(*pNode, record) && (!bText || GiveText(static_cast<CTextNode&>(*pNode), record.text));
    return bMade ? std::move(pNode) : nullptr;
}

void WriteNode(CByteWriter& writer, const NodeRecord& record) { TransferNode(writer, record); }

void ReadNode(CByteReader& reader, NodeRecord& record) { TransferNode(reader, record); }
