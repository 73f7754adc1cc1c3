#include "afxplex_.h"

#include <new>

CPlex* CPlex::Create(CPlex*& pHead, UINT nMax, UINT cbElement) {
    const std::size_t size = sizeof(CPlex) + static_cast<std::size_t>(nMax) * cbElement;
    void* const pStorage = ::operator new(size, std::nothrow);
    if (!pStorage) {
        return nullptr;
    }
    pHead = ::new (pStorage) CPlex{pHead};
    return pHead;
}

void CPlex::FreeDataChain() {
    for (CPlex* pBlock = this; pBlock;) {
        CPlex* const pBehind = pBlock->pNext;
        ::operator delete(pBlock);
        pBlock = pBehind;
    }
}
