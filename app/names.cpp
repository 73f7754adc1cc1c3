#include "names.h"

#include "desk/desk.h"
#include "image/node_host.h"

namespace {

constexpr char ShadowSuffix[] = ".shadow";
constexpr char FrameSuffix[] = ".frame";

struct CompanionRow {
    const char* pszSuffix;
    CImgNode* (*pfnCompanion)(const CImgNode& node);
};
constexpr CompanionRow Companions[] = {{ShadowSuffix, CNodeBookkeeping::LiveShadow},
                                       {FrameSuffix, CNodeBookkeeping::LiveFrame}};

bool EndsWith(const std::string& text, const std::string& suffix) {
    return text.size() > suffix.size() &&
           text.compare(text.size() - suffix.size(), suffix.size(), suffix) == 0;
}

std::string WithoutSuffix(const std::string& text, const std::string& suffix) {
    return text.substr(0, text.size() - suffix.size());
}

} // namespace

void CNames::Clear() {
    m_idByName.clear();
    m_rootById.clear();
    m_copies.clear();
    m_nTexts = 0;
    m_nPastes = 0;
}

void CNames::Give(const std::string& name, const CImgNode* pNode) {
    m_idByName[name] = pNode->m_nId;
    m_nameById[pNode->m_nId] = name;
}

void CNames::NameNewNodes() {
    const CVorDoc* pDoc = m_desk.Document();
    if (!pDoc) {
        return;
    }
    for (const CImgNode* pNode : CNodeBookkeeping::NodesById(*pDoc)) {
        if (CNodeBookkeeping::IsOnPage(*pNode)) {
            Of(pNode);
        }
    }
}

// Only the last tail can stand for a companion: companions have none of their own.
CImgNode* CNames::Find(const std::string& name) {
    NameNewNodes();
    for (const auto& [suffix, pfnCompanion] : Companions) {
        const CImgNode* pOwner = EndsWith(name, suffix) ? Labelled(WithoutSuffix(name, suffix)) : nullptr;
        if (CImgNode* pCompanion = pOwner ? pfnCompanion(*pOwner) : nullptr) {
            return pCompanion;
        }
    }
    return Labelled(name);
}

CImgNode* CNames::Labelled(const std::string& name) const {
    const CVorDoc* pDoc = m_desk.Document();
    const auto found = m_idByName.find(name);
    return found == m_idByName.end() || !pDoc ? nullptr : CNodeBookkeeping::NodeById(*pDoc, found->second);
}

std::string CNames::Of(const CImgNode* pNode) {
    if (!pNode) {
        return {};
    }
    if (const CImgNode* pOwner = CNodeBookkeeping::LiveOwner(*pNode)) {
        Give(CompanionName(*pOwner, pNode), pNode);
    } else if (!m_nameById.count(pNode->m_nId)) {
        NameNewNode(pNode);
    }
    return m_nameById[pNode->m_nId];
}

std::string CNames::OfId(std::uint32_t nId) {
    if (nId == 0) {
        return {};
    }
    const CVorDoc* pDoc = m_desk.Document();
    if (const CImgNode* pNode = pDoc ? CNodeBookkeeping::NodeById(*pDoc, nId) : nullptr) {
        return Of(pNode);
    }
    const auto found = m_nameById.find(nId);
    return found == m_nameById.end() ? "node#" + std::to_string(nId) : found->second;
}

std::string CNames::CompanionName(const CImgNode& owner, const CImgNode* pNode) {
    const bool bShadow = owner.m_pShadowNode == pNode || pNode->m_nType == node_type::Shadow;
    return Of(&owner) + (bShadow ? ShadowSuffix : FrameSuffix);
}

// A person may have called a node of their own "A#2".
std::string CNames::FreeName(const std::string& root, int& nLast) const {
    std::string name;
    do {
        name = root + "#" + std::to_string(++nLast);
    } while (m_idByName.count(name));
    return name;
}

// Copies of copies count on from the first one, so that every copy of A is A#n.
void CNames::NameNewNode(const CImgNode* pNode) {
    if (const std::uint32_t nSource = CNodeBookkeeping::CopyOf(*pNode)) {
        const std::string source = OfId(nSource);
        const auto found = m_rootById.find(nSource);
        const std::string root = found == m_rootById.end() ? source : found->second;
        m_rootById[pNode->m_nId] = root;
        Give(FreeName(root, m_copies.try_emplace(root, 1).first->second), pNode);
    } else if (CNodeBookkeeping::IsPasted(*pNode)) {
        Give(FreeName("paste", m_nPastes), pNode);
    } else if (pNode->m_nType == node_type::Text) {
        Give(FreeName("text", m_nTexts), pNode);
    } else {
        Give("node#" + std::to_string(pNode->m_nId), pNode);
    }
}
