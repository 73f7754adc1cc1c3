// The host's object clipboard on the bus.
#pragma once

#include <cstdint>
#include <vector>

#include "bus/bus_object.h"
#include "host/object_clipboard.h"

class CDesk;
class CImgNode;

/// Kind 12 of the edit category. It answers what a person has set and copies nothing, or works; what it holds
/// outlives the page.
class CDeskClipboard : public CBusObject, public IObjectClipboard {
  public:
    /// The desk is not owned.
    explicit CDeskClipboard(CDesk& desk);

    /// 1 when an object of the page is selected.
    int CanCopy(CPoint point) override;
    /// 1, or 0 when nothing is selected, an object's size is beyond 32,767 a side or memory is out; what the
    /// clipboard holds stays then.
    int Copy(CPoint point) override;
    /// 1 when there are objects to paste.
    int CanPaste(CPoint point) override;
    /// 1, or 0 when there is nothing to paste, it is damaged or memory is out; the page is as it was then.
    /// The flag makes no difference.
    int Paste(CPoint point, int nFlag) override;

    /// The bytes that copied objects are kept as; none while there are none. Whatever is set is checked when
    /// it is pasted.
    const std::vector<std::uint8_t>& Content() const { return m_content; }
    void SetContent(std::vector<std::uint8_t> content) { m_content = std::move(content); }

  private:
    std::vector<CImgNode*> SelectedObjects() const;
    int CopyObjects();
    int PasteObjects(const CPoint& point);

    CDesk& m_desk;
    std::vector<std::uint8_t> m_content;
};
