// Texts that could not be rendered at a commit.
#pragma once

#include <cstdint>
#include <map>

#include <afxwin.h>

/// One text an object of one page, by the object's identity; 0 stands for new text. They go when the page is
/// another.
class CUnsavedTexts {
  public:
    static constexpr std::uint32_t NewText = 0;

    void Keep(std::uint32_t nPage, std::uint32_t nObject, const CString& strText) {
        TurnTo(nPage);
        m_texts[nObject] = strText;
    }
    /// Null when there is none.
    const CString* Find(std::uint32_t nPage, std::uint32_t nObject) {
        TurnTo(nPage);
        const auto found = m_texts.find(nObject);
        return found == m_texts.end() ? nullptr : &found->second;
    }
    void Drop(std::uint32_t nObject) { m_texts.erase(nObject); }

  private:
    void TurnTo(std::uint32_t nPage) {
        if (m_nPage != nPage) {
            m_texts.clear();
            m_nPage = nPage;
        }
    }

    std::map<std::uint32_t, CString> m_texts;
    std::uint32_t m_nPage = 0;
};
