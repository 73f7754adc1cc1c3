#include "desk/told_record.h"

#include "desk/guid_text.h"

void CToldRecord::Tell(const GUID& iid, int nOp, std::initializer_list<trace::Value> args) {
    m_told[GuidText(iid)][nOp].assign(args.begin(), args.end());
}
