// Objects with their companions as one block of bytes; docs/clipboard-format.md describes it.
#pragma once

#include <cstdint>
#include <memory>
#include <vector>

#include "clipboard/byte_stream.h"
#include "host/img_doc.h"

/// An object with its companions, linked both ways, in no list; null where it has none.
struct NodeGroup {
    std::unique_ptr<CImgNode> pFrame;
    std::unique_ptr<CImgNode> pObject;
    std::unique_ptr<CImgNode> pShadow;
};
using NodeGroups = std::vector<NodeGroup>;

/// The objects, in their order, with their frames and shadows. False, and `bytes` as they were, when there is
/// none, or when one has a value that the format does not take (a size below 0 or beyond 32,767). Throws
/// std::bad_alloc when memory is out.
bool WriteObjects(const std::vector<CImgNode*>& objects, std::vector<std::uint8_t>& bytes);
/// As many first bytes as tell the whole length.
inline constexpr std::size_t ObjectHeadBytes = 16;
/// The whole length that the first bytes promise; 0 when they are not those of objects.
std::uint64_t PromisedLength(ByteView head);
/// Whether the bytes are whole and sound. Throws as above.
bool AreObjects(ByteView bytes);
/// Makes the objects for the document, at the places that they were copied from. False, and nothing is made,
/// when the bytes are damaged or a node or buffer cannot be had. Throws as above; nothing is made then
/// either.
bool ReadObjects(ByteView bytes, CImgDoc& doc, NodeGroups& groups);
