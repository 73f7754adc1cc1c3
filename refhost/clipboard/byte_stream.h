// Little-endian numbers and counted bytes, written to and read from memory.
#pragma once

#include <bit>
#include <concepts>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

using ByteView = std::span<const std::uint8_t>;

/// A whole number of 32 bits, signed or not.
template <class T>
concept Number32 = std::integral<T> && sizeof(T) == 4;

/// Appends to a block of bytes, which is not owned. Throws std::bad_alloc when memory is out.
class CByteWriter {
  public:
    explicit CByteWriter(std::vector<std::uint8_t>& bytes) : m_bytes(bytes) {}

    template <Number32 T>
    void Number(T nValue) {
        Append(static_cast<std::uint32_t>(nValue), 4);
    }
    void Long(std::uint64_t nValue) { Append(nValue, 8); }
    void Real(double dValue) { Append(std::bit_cast<std::uint64_t>(dValue), 8); }
    /// The bytes alone, and the bytes behind their 32-bit count.
    void Raw(ByteView bytes);
    void Counted(ByteView bytes);
    void Counted(std::string_view text);
    /// Writes `nValue` over the eight bytes at `nPlace`, which were written before.
    void PutLong(std::size_t nPlace, std::uint64_t nValue);
    std::size_t Size() const { return m_bytes.size(); }

  private:
    void Append(std::uint64_t nValue, int nBytes);

    std::vector<std::uint8_t>& m_bytes;
};

/// Reads a block of bytes, which is not owned. What the bytes do not hold reads as 0 or nothing, and from
/// then on the reader has failed.
class CByteReader {
  public:
    explicit CByteReader(ByteView bytes) : m_left(bytes) {}

    template <Number32 T>
    void Number(T& nValue) {
        nValue = static_cast<T>(static_cast<std::uint32_t>(Take(4)));
    }
    void Long(std::uint64_t& nValue) { nValue = Take(8); }
    void Real(double& dValue) { dValue = std::bit_cast<double>(Take(8)); }
    ByteView Raw(std::uint64_t nCount);
    void Counted(ByteView& bytes);
    void Counted(std::string_view& text);

    void Fail() { m_bFailed = true; }
    bool HasFailed() const { return m_bFailed; }
    std::size_t Left() const { return m_left.size(); }
    /// Everything was read, and nothing is left.
    bool IsDone() const { return !m_bFailed && m_left.empty(); }

  private:
    std::uint64_t Take(int nBytes);

    ByteView m_left;
    bool m_bFailed = false;
};

/// The checksum CRC-32 as Ethernet and PNG have it.
std::uint32_t Crc32(ByteView bytes);
