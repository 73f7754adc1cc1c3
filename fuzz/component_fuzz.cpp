// Reads bytes as a component file. Beyond crashes it stops at an object that its bytes cannot hold and at
// buffers that stay behind.
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <vector>

#include "component/component_file.h"

namespace {

void Require(bool bHolds, const char* pszLaw) {
    if (!bHolds) {
        std::fprintf(stderr, "broken: %s\n", pszLaw);
        std::abort();
    }
}

std::size_t BytesOf(const CBufferPtr& picture) {
    const buffer_host::View view = buffer_host::Look(picture.Get());
    return view.RowBytes() * static_cast<std::size_t>(view.height);
}

void CheckLaws(const std::vector<ComponentObject>& objects, std::size_t nSize) {
    std::size_t nBytes = 0;
    for (const ComponentObject& object : objects) {
        Require(object.name.size() <= MostNameBytes && object.name.find('\0') == std::string::npos,
                "a name fits into its record");
        Require(!object.image || buffer_host::Look(object.image.Get()).unit == 3, "an image has 24 bits");
        Require(!object.mask || buffer_host::Look(object.mask.Get()).unit == 1, "a mask has 8 bits");
        nBytes += object.name.size() + BytesOf(object.image) + BytesOf(object.mask);
    }
    Require(nBytes <= nSize, "what was read stood in the file");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* pBytes, std::size_t nSize) {
    {
        std::vector<ComponentObject> objects(1);
        objects.front().x = 1;
        if (ReadComponent({pBytes, nSize}, objects)) {
            CheckLaws(objects, nSize);
        } else {
            Require(objects.size() == 1 && objects.front().x == 1, "a refused file leaves what was there");
        }
    }
    Require(buffer_host::BufferCount() == 0, "no buffer stays");
    return 0;
}
