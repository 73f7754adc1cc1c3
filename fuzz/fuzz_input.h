// What the fuzzers share: an input taken apart from the front, and the end of one that breaks a law.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>

#include <afxwin.h>

inline void Require(bool bHolds, const char* pszLaw) {
    if (!bHolds) {
        std::fprintf(stderr, "broken: %s\n", pszLaw);
        std::abort();
    }
}

/// Takes bytes from the front; zeros when there are none left.
class CInput {
  public:
    CInput(const std::uint8_t* pBytes, std::size_t nSize) : m_pBytes(pBytes), m_nLeft(nSize) {}

    bool IsEmpty() const { return m_nLeft == 0; }
    int Byte() {
        if (m_nLeft == 0) {
            return 0;
        }
        --m_nLeft;
        return *m_pBytes++;
    }
    bool Bit() { return (Byte() & 1) != 0; }
    /// Mostly around the text's own numbers, and the ends of the range.
    int Number() {
        const int n = static_cast<std::int8_t>(Byte());
        return n == -128 ? -2147483647 - 1 : n == 127 ? 2147483647 : n;
    }
    CPoint Point() {
        const int nX = Byte();
        return {nX - 40, Byte() - 60};
    }
    std::string Text() {
        std::string text;
        for (int n = Byte() % 24; n > 0 && m_nLeft > 0; --n) {
            text += static_cast<char>(Byte());
        }
        return text;
    }
    template <class Rows>
    auto Of(const Rows& rows) {
        return rows[static_cast<std::size_t>(Byte()) % rows.size()];
    }

  private:
    const std::uint8_t* m_pBytes;
    std::size_t m_nLeft;
};
