#pragma once

// Strings of ANSI bytes.

#include <windows.h>

#include <compare>
#include <cstdarg>
#include <string>

/// A byte string by value. Positions and lengths count bytes; a null pointer given as text means the empty
/// string.
class CString {
  public:
    CString() = default;
    CString(LPCSTR lpsz) : m_text(TextOf(lpsz)) {}
    CString(LPCSTR lpch, int nLength);
    CString(char ch, int nRepeat = 1);

    CString& operator=(LPCSTR lpsz);
    CString& operator=(char ch);

    int GetLength() const { return static_cast<int>(m_text.size()); }
    BOOL IsEmpty() const { return m_text.empty(); }
    void Empty() { m_text.clear(); }
    /// `nIndex` is below the length.
    char GetAt(int nIndex) const;
    char operator[](int nIndex) const { return GetAt(nIndex); }
    void SetAt(int nIndex, char ch);
    /// Good until the string changes.
    operator LPCSTR() const { return m_text.c_str(); }

    CString& operator+=(const CString& string);
    CString& operator+=(LPCSTR lpsz);
    CString& operator+=(char ch);

    /// -1, 0 or 1 by the bytes' unsigned values.
    int Compare(LPCSTR lpsz) const;
    /// As Compare, with the ASCII letters alike.
    int CompareNoCase(LPCSTR lpsz) const;

    /// Parts; what lies outside the string is left out.
    CString Mid(int nFirst) const;
    CString Mid(int nFirst, int nCount) const;
    CString Left(int nCount) const;
    CString Right(int nCount) const;

    /// ASCII letters only; other bytes stay as they are.
    void MakeUpper();
    void MakeLower();
    /// White space of the C locale.
    void TrimLeft();
    void TrimRight();

    /// The first place at or after `nStart`, or -1.
    int Find(char ch, int nStart = 0) const;
    int Find(LPCSTR lpszSub, int nStart = 0) const;
    int ReverseFind(char ch) const;
    int FindOneOf(LPCSTR lpszCharSet) const;

    void Format(LPCSTR lpszFormat, ...) __attribute__((format(printf, 2, 3)));
    void FormatV(LPCSTR lpszFormat, std::va_list argList);

    /// At least `nMinBufLength` writable bytes, holding the text; nothing else may be called until
    /// ReleaseBuffer.
    LPSTR GetBuffer(int nMinBufLength);
    /// Takes the buffer's text of `nNewLength` bytes, or up to its zero for -1.
    void ReleaseBuffer(int nNewLength = -1);

    friend bool operator==(const CString& a, const CString& b) { return a.m_text == b.m_text; }
    friend bool operator==(const CString& a, LPCSTR b) { return a.Compare(b) == 0; }
    friend std::strong_ordering operator<=>(const CString& a, const CString& b) {
        return a.m_text <=> b.m_text;
    }
    friend std::strong_ordering operator<=>(const CString& a, LPCSTR b) { return a.Compare(b) <=> 0; }

    friend CString operator+(CString a, const CString& b) { return a += b; }
    friend CString operator+(CString a, LPCSTR b) { return a += b; }
    friend CString operator+(CString a, char b) { return a += b; }
    friend CString operator+(LPCSTR a, const CString& b) { return CString(a) += b; }
    friend CString operator+(char a, const CString& b) { return CString(a) += b; }

  private:
    static LPCSTR TextOf(LPCSTR lpsz) { return lpsz ? lpsz : ""; }

    std::string m_text;
};
