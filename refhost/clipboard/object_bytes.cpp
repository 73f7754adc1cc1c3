#include "clipboard/object_bytes.h"

#include <algorithm>
#include <array>

#include "clipboard/node_record.h"
#include "image/node_host.h"

namespace {

constexpr std::array<std::uint8_t, 4> Magic = {'P', 'X', 'O', 'B'};
constexpr std::uint32_t Version = 1;
constexpr std::size_t LengthPlace = 8;
constexpr std::size_t ChecksumBytes = 4;
/// More than the fixed fields of a node take.
constexpr std::size_t NodeRoom = 512;

constexpr std::uint32_t HasFrame = 1;
constexpr std::uint32_t HasShadow = 2;

struct GroupRecord {
    std::uint32_t nCompanions = 0;
    NodeRecord frame;
    NodeRecord object;
    NodeRecord shadow;
};

/// From the front: the order in which a group's nodes stand in the bytes.
template <class TGroup>
auto NodesOf(TGroup& group) {
    std::vector<decltype(&group.object)> nodes{&group.object};
    if (group.nCompanions & HasFrame) {
        nodes.insert(nodes.begin(), &group.frame);
    }
    if (group.nCompanions & HasShadow) {
        nodes.push_back(&group.shadow);
    }
    return nodes;
}

bool IsSoundGroup(const GroupRecord& group) {
    const bool bFrame = group.nCompanions & HasFrame;
    const bool bShadow = group.nCompanions & HasShadow;
    const auto nodes = NodesOf(group);
    return group.nCompanions <= (HasFrame | HasShadow) &&
           (!bFrame || group.frame.nType == node_type::Frame) &&
           (!bShadow || group.shadow.nType == node_type::Shadow) &&
           std::all_of(nodes.begin(), nodes.end(), [](const NodeRecord* pNode) { return IsSound(*pNode); });
}

GroupRecord GroupRecordOf(const CImgNode& object) {
    GroupRecord group;
    group.object = RecordOf(object);
    if (const CImgNode* pFrame = CNodeBookkeeping::LiveFrame(object)) {
        group.nCompanions |= HasFrame;
        group.frame = RecordOf(*pFrame);
    }
    if (const CImgNode* pShadow = CNodeBookkeeping::LiveShadow(object)) {
        group.nCompanions |= HasShadow;
        group.shadow = RecordOf(*pShadow);
    }
    return group;
}

std::size_t RoomFor(const NodeRecord& node) {
    std::size_t nBytes = NodeRoom + node.text.text.size() + node.text.fontName.size();
    for (const PixelRecord* pPixels : {&node.image, &node.mask, &node.sourceImage, &node.sourceMask,
                                       &node.mergeBuffer, &node.text.textMask}) {
        nBytes += pPixels->pixels.size();
    }
    return nBytes;
}

void WriteGroup(CByteWriter& writer, const GroupRecord& group) {
    writer.Number(group.nCompanions);
    for (const NodeRecord* pNode : NodesOf(group)) {
        const std::size_t nPlace = writer.Size();
        writer.Long(0);
        WriteNode(writer, *pNode);
        writer.PutLong(nPlace, writer.Size() - nPlace - sizeof(std::uint64_t));
    }
}

void ReadGroup(CByteReader& reader, GroupRecord& group) {
    reader.Number(group.nCompanions);
    for (NodeRecord* pNode : NodesOf(group)) {
        std::uint64_t nLength = 0;
        reader.Long(nLength);
        CByteReader own(reader.Raw(nLength));
        ReadNode(own, *pNode);
        if (!own.IsDone()) {
            reader.Fail();
        }
    }
}

/// Checks what stands round the objects and answers the bytes between; none for a damaged block.
ByteView Unwrapped(ByteView bytes) {
    if (bytes.size() < ObjectHeadBytes + ChecksumBytes || PromisedLength(bytes) != bytes.size()) {
        return {};
    }
    const ByteView checked = bytes.first(bytes.size() - ChecksumBytes);
    std::uint32_t nChecksum = 0;
    CByteReader(bytes.last(ChecksumBytes)).Number(nChecksum);
    return nChecksum == Crc32(checked) ? checked.subspan(ObjectHeadBytes) : ByteView();
}

/// False for bytes that are damaged. The records look into the bytes; each is made only when the one before
/// was there, so that a false count costs nothing.
bool ReadGroups(ByteView bytes, std::vector<GroupRecord>& groups) {
    CByteReader reader(Unwrapped(bytes));
    std::uint32_t nCount = 0;
    reader.Number(nCount);
    for (std::uint32_t n = 0; n < nCount && !reader.HasFailed(); ++n) {
        ReadGroup(reader, groups.emplace_back());
        if (!reader.HasFailed() && !IsSoundGroup(groups.back())) {
            reader.Fail();
        }
    }
    return nCount > 0 && reader.IsDone();
}

bool MakeGroup(CImgDoc& doc, const GroupRecord& record, NodeGroup& group) {
    group.pObject = MakeNode(doc, record.object);
    if (!group.pObject) {
        return false;
    }
    if (record.nCompanions & HasFrame) {
        group.pFrame = MakeNode(doc, record.frame);
        group.pObject->m_pFrameNode = group.pFrame.get();
    }
    if (record.nCompanions & HasShadow) {
        group.pShadow = MakeNode(doc, record.shadow);
        group.pObject->m_pShadowNode = group.pShadow.get();
    }
    for (const auto& pCompanion : {group.pFrame.get(), group.pShadow.get()}) {
        if (pCompanion) {
            pCompanion->m_pOwner = group.pObject.get();
        }
    }
    return static_cast<bool>(group.pFrame) == ((record.nCompanions & HasFrame) != 0) &&
           static_cast<bool>(group.pShadow) == ((record.nCompanions & HasShadow) != 0);
}

} // namespace

bool WriteObjects(const std::vector<CImgNode*>& objects, std::vector<std::uint8_t>& bytes) {
    if (objects.empty()) {
        return false;
    }
    std::vector<GroupRecord> groups;
    std::size_t nRoom = NodeRoom;
    for (const CImgNode* pObject : objects) {
        const GroupRecord& group = groups.emplace_back(GroupRecordOf(*pObject));
        if (!IsSoundGroup(group)) {
            return false;
        }
        for (const NodeRecord* pNode : NodesOf(group)) {
            nRoom += RoomFor(*pNode);
        }
    }
    std::vector<std::uint8_t> written;
    written.reserve(nRoom);
    CByteWriter writer(written);
    writer.Raw(Magic);
    writer.Number(Version);
    writer.Long(0);
    writer.Number(static_cast<std::uint32_t>(groups.size()));
    for (const GroupRecord& group : groups) {
        WriteGroup(writer, group);
    }
    writer.PutLong(LengthPlace, writer.Size() + ChecksumBytes);
    writer.Number(Crc32(written));
    bytes = std::move(written);
    return true;
}

std::uint64_t PromisedLength(ByteView head) {
    CByteReader reader(head);
    const ByteView magic = reader.Raw(Magic.size());
    std::uint32_t nVersion = 0;
    std::uint64_t nLength = 0;
    reader.Number(nVersion);
    reader.Long(nLength);
    const bool bOurs =
        !reader.HasFailed() && std::equal(Magic.begin(), Magic.end(), magic.begin()) && nVersion == Version;
    return bOurs ? nLength : 0;
}

bool AreObjects(ByteView bytes) {
    std::vector<GroupRecord> records;
    return ReadGroups(bytes, records);
}

bool ReadObjects(ByteView bytes, CImgDoc& doc, NodeGroups& groups) {
    std::vector<GroupRecord> records;
    if (!ReadGroups(bytes, records)) {
        return false;
    }
    NodeGroups made(records.size());
    for (std::size_t n = 0; n < records.size(); ++n) {
        if (!MakeGroup(doc, records[n], made[n])) {
            return false;
        }
    }
    groups = std::move(made);
    return true;
}
