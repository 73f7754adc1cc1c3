// A value that the objects of a selection share, or not.
#pragma once

#include <optional>

/// Gathers one value an object. It is common as long as every object brought the same.
template <class TValue>
class CSharedValue {
  public:
    void Add(const TValue& value) {
        if (!m_value) {
            m_value = value;
        } else if (!(*m_value == value)) {
            m_bMixed = true;
        }
    }
    bool IsMixed() const { return m_bMixed; }
    /// The common value, or `mixed` when the objects differ or there is none.
    TValue Or(const TValue& mixed) const { return m_value && !m_bMixed ? *m_value : mixed; }

  private:
    std::optional<TValue> m_value;
    bool m_bMixed = false;
};
