#include "afx.h"

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <utility>

namespace {

char ToLower(char ch) { return ch >= 'A' && ch <= 'Z' ? static_cast<char>(ch - 'A' + 'a') : ch; }

char ToUpper(char ch) { return ch >= 'a' && ch <= 'z' ? static_cast<char>(ch - 'a' + 'A') : ch; }

constexpr const char* WhiteSpace = " \t\n\v\f\r";

int SignOf(int difference) { return (difference > 0) - (difference < 0); }

int IndexOf(std::string::size_type position) {
    return position == std::string::npos ? -1 : static_cast<int>(position);
}

} // namespace

CString::CString(LPCSTR lpch, int nLength) {
    if (lpch && nLength > 0) {
        m_text.assign(lpch, static_cast<std::size_t>(nLength));
    }
}

CString::CString(char ch, int nRepeat) : m_text(static_cast<std::size_t>(std::max(nRepeat, 0)), ch) {}

CString& CString::operator=(LPCSTR lpsz) {
    m_text = TextOf(lpsz);
    return *this;
}

CString& CString::operator=(char ch) {
    m_text.assign(1, ch);
    return *this;
}

char CString::GetAt(int nIndex) const {
    ASSERT(nIndex >= 0 && nIndex < GetLength());
    return m_text[static_cast<std::size_t>(nIndex)];
}

void CString::SetAt(int nIndex, char ch) {
    ASSERT(nIndex >= 0 && nIndex < GetLength());
    m_text[static_cast<std::size_t>(nIndex)] = ch;
}

CString& CString::operator+=(const CString& string) {
    m_text += string.m_text;
    return *this;
}

CString& CString::operator+=(LPCSTR lpsz) {
    m_text += TextOf(lpsz);
    return *this;
}

CString& CString::operator+=(char ch) {
    m_text += ch;
    return *this;
}

int CString::Compare(LPCSTR lpsz) const { return SignOf(std::strcmp(m_text.c_str(), TextOf(lpsz))); }

int CString::CompareNoCase(LPCSTR lpsz) const {
    CString a(*this);
    CString b(lpsz);
    a.MakeLower();
    b.MakeLower();
    return a.Compare(b);
}

CString CString::Mid(int nFirst) const { return Mid(nFirst, GetLength()); }

CString CString::Mid(int nFirst, int nCount) const {
    const int first = std::clamp(nFirst, 0, GetLength());
    return CString(m_text.c_str() + first, std::min(nCount, GetLength() - first));
}

CString CString::Left(int nCount) const { return Mid(0, nCount); }

CString CString::Right(int nCount) const { return Mid(GetLength() - std::clamp(nCount, 0, GetLength())); }

void CString::MakeUpper() { std::transform(m_text.begin(), m_text.end(), m_text.begin(), ToUpper); }

void CString::MakeLower() { std::transform(m_text.begin(), m_text.end(), m_text.begin(), ToLower); }

void CString::TrimLeft() { m_text.erase(0, m_text.find_first_not_of(WhiteSpace)); }

void CString::TrimRight() {
    // Where there is nothing but white space, npos + 1 is 0.
    m_text.erase(m_text.find_last_not_of(WhiteSpace) + 1);
}

int CString::Find(char ch, int nStart) const {
    return nStart < 0 ? -1 : IndexOf(m_text.find(ch, static_cast<std::size_t>(nStart)));
}

int CString::Find(LPCSTR lpszSub, int nStart) const {
    return nStart < 0 ? -1 : IndexOf(m_text.find(TextOf(lpszSub), static_cast<std::size_t>(nStart)));
}

int CString::ReverseFind(char ch) const { return IndexOf(m_text.rfind(ch)); }

int CString::FindOneOf(LPCSTR lpszCharSet) const {
    return IndexOf(m_text.find_first_of(TextOf(lpszCharSet)));
}

void CString::Format(LPCSTR lpszFormat, ...) {
    std::va_list argList;
    va_start(argList, lpszFormat);
    FormatV(lpszFormat, argList);
    va_end(argList);
}

void CString::FormatV(LPCSTR lpszFormat, std::va_list argList) {
    std::va_list measured;
    va_copy(measured, argList);
    const int nLength = std::vsnprintf(nullptr, 0, lpszFormat, measured);
    va_end(measured);
    // The arguments may point into this string, so it changes only when the text is complete.
    std::string text(static_cast<std::size_t>(std::max(nLength, 0)), '\0');
    std::vsnprintf(text.data(), text.size() + 1, lpszFormat, argList);
    m_text = std::move(text);
}

LPSTR CString::GetBuffer(int nMinBufLength) {
    m_text.resize(static_cast<std::size_t>(std::max(nMinBufLength, GetLength())));
    return m_text.data();
}

void CString::ReleaseBuffer(int nNewLength) {
    m_text.resize(nNewLength < 0 ? std::strlen(m_text.c_str()) : static_cast<std::size_t>(nNewLength));
}
