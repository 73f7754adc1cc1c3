#include "desk/page_objects.h"

#include "host/img_doc.h"
#include "trace/trace.h"

namespace {

constexpr char On[] = "27";

} // namespace

CPageObjects::CPageObjects() {
    AddKind(CategoryId, kind::PageObjects);
    AddKind(CategoryId, kind::Any);
    AddInterface<IPageObjects>(this);
}

void CPageObjects::SetDocument(CVorDoc* pDoc) {
    m_pDoc = pDoc;
    m_values.clear();
    m_fitting.clear();
}

void CPageObjects::SetFitsToPlaceHolder(std::uint32_t nNodeId, bool bFits) {
    if (bFits) {
        m_fitting.insert(nNodeId);
    } else {
        m_fitting.erase(nNodeId);
    }
}

std::vector<const CImgNode*> CPageObjects::TopLevelObjects() const {
    std::vector<const CImgNode*> objects;
    const CImgNodeList* pList = m_pDoc ? m_pDoc->GetObjList() : nullptr;
    for (POSITION pos = pList ? pList->GetHeadPosition() : nullptr; pos;) {
        const CImgNode* pNode = pList->GetNext(pos);
        if (!pNode->m_pOwner) {
            objects.push_back(pNode);
        }
    }
    return objects;
}

std::map<const CImgNode*, std::int32_t> CPageObjects::ValuesByObject() const {
    std::map<const CImgNode*, std::int32_t> values;
    const std::vector<const CImgNode*> objects = TopLevelObjects();
    for (std::size_t n = 0; n < objects.size() && n < m_values.size(); ++n) {
        values[objects[n]] = m_values[n];
    }
    return values;
}

// The table ends with the last object that had a value, so that further ones are appended for those behind.
void CPageObjects::SetValuesByObject(const std::map<const CImgNode*, std::int32_t>& values) {
    m_values.clear();
    std::size_t nEnd = 0;
    for (const CImgNode* pObject : TopLevelObjects()) {
        const auto found = values.find(pObject);
        m_values.push_back(found == values.end() ? 0 : found->second);
        nEnd = found == values.end() ? nEnd : m_values.size();
    }
    m_values.resize(nEnd);
}

int CPageObjects::AppendValue(std::int32_t nValue) {
    trace::BusCall(On, IPageObjects::Id, 5, {nValue});
    m_values.push_back(nValue);
    return 1;
}

std::int32_t CPageObjects::GetValue(CImgNode* pNode) {
    trace::BusCall(On, IPageObjects::Id, 6, {trace::Node(pNode)});
    if (!m_pDoc || m_values.empty()) {
        return 0;
    }
    const CImgNodeList* pList = m_pDoc->GetObjList();
    std::size_t nPlace = 0;
    for (POSITION pos = pList->GetHeadPosition(); pos && nPlace < m_values.size();) {
        const CImgNode* pAt = pList->GetNext(pos);
        if (pAt == pNode) {
            return m_values[nPlace];
        }
        nPlace += pAt->m_pOwner ? 0 : 1;
    }
    return 0;
}

int CPageObjects::ClearValues() {
    trace::BusCall(On, IPageObjects::Id, 7, {});
    m_values.clear();
    return 1;
}

int CPageObjects::FitsToPlaceHolder(CImgNode* pNode) {
    trace::BusCall(On, IPageObjects::Id, 59, {trace::Node(pNode)});
    return pNode && m_fitting.count(pNode->m_nId) ? 1 : 0;
}
