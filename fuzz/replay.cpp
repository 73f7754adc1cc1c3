// Runs kept inputs through the fuzzer's entry, without a fuzzer. Usage: fuzz_cases FILE|FOLDER...
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* pBytes, std::size_t nSize);

namespace {

int g_nReplayed = 0;

void Replay(const std::filesystem::path& path) {
    std::ifstream file(path, std::ios::binary);
    const std::vector<char> bytes{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
    std::printf("%s: %zu bytes\n", path.c_str(), bytes.size());
    std::fflush(stdout); // The last line tells which input crashes.
    LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
    ++g_nReplayed;
}

} // namespace

int main(int argc, char** argv) {
    for (int n = 1; n < argc; n++) {
        if (!std::filesystem::is_directory(argv[n])) {
            Replay(argv[n]);
            continue;
        }
        for (const auto& entry : std::filesystem::directory_iterator(argv[n])) {
            Replay(entry.path());
        }
    }
    return g_nReplayed > 0 ? 0 : 1;
}
