#include "clipboard/byte_stream.h"

#include <array>

namespace {

constexpr std::uint32_t ReversedPolynomial = 0xEDB88320;

constexpr std::array<std::uint32_t, 256> CrcTable() {
    std::array<std::uint32_t, 256> table{};
    for (std::uint32_t n = 0; n < 256; ++n) {
        std::uint32_t nRest = n;
        for (int nBit = 0; nBit < 8; ++nBit) {
            nRest = (nRest >> 1) ^ (nRest & 1 ? ReversedPolynomial : 0);
        }
        table[n] = nRest;
    }
    return table;
}

} // namespace

void CByteWriter::Raw(ByteView bytes) { m_bytes.insert(m_bytes.end(), bytes.begin(), bytes.end()); }

void CByteWriter::Counted(ByteView bytes) {
    Number(static_cast<std::uint32_t>(bytes.size()));
    Raw(bytes);
}

void CByteWriter::Counted(std::string_view text) {
    Counted(ByteView(reinterpret_cast<const std::uint8_t*>(text.data()), text.size()));
}

void CByteWriter::PutLong(std::size_t nPlace, std::uint64_t nValue) {
    for (std::size_t n = 0; n < 8; ++n) {
        m_bytes[nPlace + n] = static_cast<std::uint8_t>(nValue >> (8 * n));
    }
}

void CByteWriter::Append(std::uint64_t nValue, int nBytes) {
    for (int n = 0; n < nBytes; ++n) {
        m_bytes.push_back(static_cast<std::uint8_t>(nValue >> (8 * n)));
    }
}

ByteView CByteReader::Raw(std::uint64_t nCount) {
    if (m_bFailed || nCount > m_left.size()) {
        Fail();
        return {};
    }
    const ByteView bytes = m_left.first(static_cast<std::size_t>(nCount));
    m_left = m_left.subspan(bytes.size());
    return bytes;
}

void CByteReader::Counted(ByteView& bytes) {
    std::uint32_t nCount = 0;
    Number(nCount);
    bytes = Raw(nCount);
}

void CByteReader::Counted(std::string_view& text) {
    ByteView bytes;
    Counted(bytes);
    text = {reinterpret_cast<const char*>(bytes.data()), bytes.size()};
}

std::uint64_t CByteReader::Take(int nBytes) {
    const ByteView bytes = Raw(static_cast<std::uint64_t>(nBytes));
    std::uint64_t nValue = 0;
    for (std::size_t n = bytes.size(); n > 0; --n) {
        nValue = nValue << 8 | bytes[n - 1];
    }
    return nValue;
}

std::uint32_t Crc32(ByteView bytes) {
    static constexpr std::array<std::uint32_t, 256> Table = CrcTable();
    std::uint32_t nRest = 0xFFFFFFFF;
    for (const std::uint8_t byte : bytes) {
        nRest = (nRest >> 8) ^ Table[(nRest ^ byte) & 0xFF];
    }
    return ~nRest;
}
