// Lists of records on the heap, which an event owns.
#pragma once

#include <memory>
#include <new>

#include <afxtempl.h>

/// Appends a copy of the record. False when memory is out.
template <class TRecord>
bool AddRecord(CList<TRecord*, TRecord*>& records, const TRecord& record) {
    std::unique_ptr<TRecord> pRecord(new (std::nothrow) TRecord(record));
    if (!pRecord || !records.AddTail(pRecord.get())) {
        return false;
    }
    pRecord.release();
    return true;
}

template <class TRecord>
void FreeRecords(CList<TRecord*, TRecord*>& records) {
    while (!records.IsEmpty()) {
        delete records.RemoveHead();
    }
}
