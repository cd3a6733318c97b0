#include "app/generalMidiBanks.h"

#include "preferences/Preferences.h"

#include <algorithm>
#include <string>
#include <system_error>

namespace velmora {

std::vector<std::filesystem::path> generalMidiBanks()
{
    std::vector<std::filesystem::path> banks;
    const std::string preferred = getPrefString("GMBank");
    if (!preferred.empty())
        banks.emplace_back(preferred);
    // A bundle of the program contains a bank of its own.
    std::error_code error;
    const auto program = std::filesystem::read_symlink("/proc/self/exe", error);
    for (const auto& root : {std::filesystem::path("/usr"), program.parent_path().parent_path()}) {
        for (const char* name : {"default-GM.sf2", "TimGM6mb.sf2"}) {
            const auto path = root / "share/sounds/sf2" / name;
            if (std::filesystem::exists(path, error) && std::ranges::count(banks, path) == 0)
                banks.push_back(path);
        }
    }
    return banks;
}

} // namespace velmora
