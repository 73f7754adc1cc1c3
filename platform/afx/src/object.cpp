#include "afx.h"

CRuntimeClass CObject::classCObject = {"CObject", sizeof(CObject), 0xFFFF, nullptr, nullptr, nullptr};

CRuntimeClass* CObject::GetRuntimeClass() const { return RUNTIME_CLASS(CObject); }

void CObject::Serialize(CArchive&) {}

void CObject::AssertValid() const {}

void CObject::Dump(CDumpContext&) const {}

BOOL CObject::IsKindOf(const CRuntimeClass* pClass) const { return GetRuntimeClass()->IsDerivedFrom(pClass); }

BOOL CObject::IsSerializable() const { return GetRuntimeClass()->m_wSchema != 0xFFFF; }

CObject* CRuntimeClass::CreateObject() const {
    if (!m_pfnCreateObject) {
        return nullptr;
    }
    // A constructor that runs out of memory must not throw into the module that asked.
    try {
        return m_pfnCreateObject();
    } catch (...) {
        return nullptr;
    }
}

BOOL CRuntimeClass::IsDerivedFrom(const CRuntimeClass* pBaseClass) const {
    const CRuntimeClass* pClass = this;
    while (pClass && pClass != pBaseClass) {
        pClass = pClass->m_pBaseClass;
    }
    return pClass != nullptr;
}

CObject* AfxDynamicDownCast(const CRuntimeClass* pClass, CObject* pObject) {
    return pObject && pObject->IsKindOf(pClass) ? pObject : nullptr;
}
