#include "desk/desk_clipboard.h"

#include "trace/trace.h"

namespace {

constexpr char On[] = "edit:12";

} // namespace

CDeskClipboard::CDeskClipboard(const CPanelValues& values) : m_values(values) {
    AddKind(EditCategoryId, edit_kind::ObjectClipboard);
    AddKind(CategoryId, kind::Any);
    AddInterface<IObjectClipboard>(this);
}

int CDeskClipboard::CanCopy(CPoint point) {
    trace::BusCall(On, IObjectClipboard::Id, 1, {static_cast<const POINT&>(point)});
    return m_values.nCanCopy;
}

int CDeskClipboard::Copy(CPoint point) {
    trace::BusCall(On, IObjectClipboard::Id, 2, {static_cast<const POINT&>(point)});
    return m_values.nClipboardResult;
}

int CDeskClipboard::CanPaste(CPoint point) {
    trace::BusCall(On, IObjectClipboard::Id, 3, {static_cast<const POINT&>(point)});
    return m_values.nCanPaste;
}

int CDeskClipboard::Paste(CPoint point, int nFlag) {
    trace::BusCall(On, IObjectClipboard::Id, 4, {static_cast<const POINT&>(point), nFlag});
    return m_values.nClipboardResult;
}
