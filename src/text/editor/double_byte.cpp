#include "text/editor/double_byte.h"

bool IsLeadAt(const CString& strLine, int nIndex) {
    if (nIndex < 0 || nIndex >= strLine.GetLength()) {
        return false;
    }
    const LPCSTR pszLine = strLine;
    int nStep = 1;
    int nStart = 0;
    for (int nNext = 0; nNext <= nIndex; nNext += nStep) {
        nStart = nNext;
        nStep = IsDBCSLeadByte(static_cast<BYTE>(pszLine[nNext])) ? 2 : 1;
    }
    return nStart == nIndex && nStep == 2;
}

int WholeCharacters(const CString& strLine, int nBytes) {
    return nBytes < strLine.GetLength() && IsLeadAt(strLine, nBytes - 1) ? nBytes + 1 : nBytes;
}
