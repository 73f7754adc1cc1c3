// The host's object behind the page's objects.
#pragma once

#include <map>
#include <set>
#include <vector>

#include "bus/bus_object.h"
#include "host/notifications.h"

class CVorDoc;

/// Kind 27: the table of values per object, and which objects take their placeholder's size.
class CPageObjects : public CBusObject, public IPageObjects {
  public:
    CPageObjects();

    /// The page whose objects these are; empties both tables. Not owned, may be null.
    void SetDocument(CVorDoc* pDoc);
    /// Whether operation 59 answers 1 for the node of that id; no node does at the start.
    void SetFitsToPlaceHolder(std::uint32_t nNodeId, bool bFits);

    /// The values of the page's top-level objects as far as the table reaches; and the table that gives each
    /// object its value again, 0 for one without, after the page's order has changed.
    std::map<const CImgNode*, std::int32_t> ValuesByObject() const;
    void SetValuesByObject(const std::map<const CImgNode*, std::int32_t>& values);

    int AppendValue(std::int32_t nValue) override;
    /// The table's value at the node's place among the top-level objects, front to back; 0 beyond the table.
    std::int32_t GetValue(CImgNode* pNode) override;
    int ClearValues() override;
    int FitsToPlaceHolder(CImgNode* pNode) override;

    int Reserved1() override { return 0; }
    int Reserved2() override { return 0; }
    int Reserved3() override { return 0; }
    int Reserved4() override { return 0; }
    int Reserved8() override { return 0; }
    int Reserved9() override { return 0; }
    int Reserved10() override { return 0; }
    int Reserved11() override { return 0; }
    int Reserved12() override { return 0; }
    int Reserved13() override { return 0; }
    int Reserved14() override { return 0; }
    int Reserved15() override { return 0; }
    int Reserved16() override { return 0; }
    int Reserved17() override { return 0; }
    int Reserved18() override { return 0; }
    int Reserved19() override { return 0; }
    int Reserved20() override { return 0; }
    int Reserved21() override { return 0; }
    int Reserved22() override { return 0; }
    int Reserved23() override { return 0; }
    int Reserved24() override { return 0; }
    int Reserved25() override { return 0; }
    int Reserved26() override { return 0; }
    int Reserved27() override { return 0; }
    int Reserved28() override { return 0; }
    int Reserved29() override { return 0; }
    int Reserved30() override { return 0; }
    int Reserved31() override { return 0; }
    int Reserved32() override { return 0; }
    int Reserved33() override { return 0; }
    int Reserved34() override { return 0; }
    int Reserved35() override { return 0; }
    int Reserved36() override { return 0; }
    int Reserved37() override { return 0; }
    int Reserved38() override { return 0; }
    int Reserved39() override { return 0; }
    int Reserved40() override { return 0; }
    int Reserved41() override { return 0; }
    int Reserved42() override { return 0; }
    int Reserved43() override { return 0; }
    int Reserved44() override { return 0; }
    int Reserved45() override { return 0; }
    int Reserved46() override { return 0; }
    int Reserved47() override { return 0; }
    int Reserved48() override { return 0; }
    int Reserved49() override { return 0; }
    int Reserved50() override { return 0; }
    int Reserved51() override { return 0; }
    int Reserved52() override { return 0; }
    int Reserved53() override { return 0; }
    int Reserved54() override { return 0; }
    int Reserved55() override { return 0; }
    int Reserved56() override { return 0; }
    int Reserved57() override { return 0; }
    int Reserved58() override { return 0; }

  private:
    /// Front to back.
    std::vector<const CImgNode*> TopLevelObjects() const;

    CVorDoc* m_pDoc = nullptr;
    std::vector<std::int32_t> m_values;
    std::set<std::uint32_t> m_fitting;
};
