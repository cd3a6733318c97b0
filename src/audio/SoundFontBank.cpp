#include "audio/SoundFontBank.h"

#include "base/Text.h"

#include <algorithm>
#include <stdexcept>
#include <tuple>

namespace velmora {

SoundFontBank::SoundFontBank(const std::filesystem::path& path)
    : path_(path), settings_(new_fluid_settings(), delete_fluid_settings),
      owner_(nullptr, delete_fluid_synth)
{
    fluid_settings_setint(settings_.get(), "synth.polyphony", 1);
    fluid_settings_setint(settings_.get(), "synth.chorus.active", 0);
    fluid_settings_setint(settings_.get(), "synth.reverb.active", 0);
    owner_.reset(new_fluid_synth(settings_.get()));
    if (!owner_)
        throw std::runtime_error("FluidSynth cannot create a synthesizer");
    if (fluid_is_soundfont(path.c_str()) == 0 ||
        fluid_synth_sfload(owner_.get(), path.c_str(), 1) == FLUID_FAILED)
        throw std::runtime_error("FluidSynth cannot load the SoundFont " + path.string());
    handle_ = fluid_synth_get_sfont(owner_.get(), 0);
}

std::vector<Program> SoundFontBank::programs() const
{
    std::vector<Program> programs;
    fluid_sfont_iteration_start(handle_);
    while (fluid_preset_t* preset = fluid_sfont_iteration_next(handle_)) {
        const int bank = fluid_preset_get_banknum(preset);
        programs.push_back({.bank = bank,
                            .number = fluid_preset_get_num(preset),
                            .name = toUtf8(fluid_preset_get_name(preset)),
                            .isPercussion = bank == kDrumKits});
    }
    // Of two with the same numbers FluidSynth plays the first.
    const auto numbers = [](const Program& program) {
        return std::tuple(program.bank, program.number);
    };
    std::ranges::stable_sort(programs, {}, numbers);
    programs.erase(std::unique(programs.begin(), programs.end(),
                               [&](const Program& one, const Program& other) {
                                   return numbers(one) == numbers(other);
                               }),
                   programs.end());
    return programs;
}

} // namespace velmora
