// Opens the input as an archive and unpacks its files.

#include "import/ArchiveTree.h"

#include "base/FormatError.h"
#include "require.h"

namespace velmora {

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    constexpr std::uint64_t kMemory = std::uint64_t{256} << 20U;
    MemoryGuard memory([] { return kMemory; });
    try {
        const ArchiveTree tree(openMemory(std::as_bytes(std::span(data, size))), "archive", memory);
        for (const std::string& name : tree.names()) {
            require(tree.contains(name) && !name.starts_with('/'));
            try {
                require(tree.read(name).size() == tree.size(name));
            } catch (const FormatError&) {
                continue; // damaged
            } catch (const MemoryShortage&) {
                continue;
            }
        }
    } catch (const FormatError&) {
        return 0;
    }
    return 0;
}

} // namespace velmora
