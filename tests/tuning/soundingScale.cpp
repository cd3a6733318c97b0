#include "tuning/soundingScale.h"

#include "tuning/FollowingMeantone.h"
#include "tuning/KeyTemperament.h"
#include "tuning/MappingFile.h"
#include "tuning/ScaleFile.h"
#include "tuning/ScaleTemperament.h"
#include "tuning/TransposedTemperament.h"

#include <gtest/gtest.h>

#include <cmath>

namespace velmora {

namespace {

class Silent : public Tunable {
public:
    void play(int /*key*/, float /*velocity*/) override {}
    void tune(const Temperament& /*temperament*/, int /*lo*/, int /*hi*/) override {}
};

/// Returns what the files of a sounding scale are read as.
ScaleTemperament written(const TuningShape& sounding)
{
    const std::string scale = writeScale(sounding.scale);
    const std::string mapping = writeMapping(sounding.mapping, sounding.scale.pitches.size());
    return ScaleTemperament(readScale(std::as_bytes(std::span(scale))),
                            readMapping(std::as_bytes(std::span(mapping))));
}

} // namespace

TEST(SoundingScale, FilesGiveEachKeyThePitchThatItHas)
{
    const Transposition onD{.root = 2, .a = 415.0};
    Silent silent;
    FollowingMeantone following;
    for (const int key : {52, 56, 59, 63})
        following.setup(silent, static_cast<unsigned char>(key), 1.0F);
    ASSERT_LT(following.getPitch(63), FollowingMeantone().getPitch(63)) << "it is a D sharp now";

    std::array<double, 128> hertz{};
    for (std::size_t key = 0; key < hertz.size(); ++key)
        hertz[key] = 20.0 + 3.0 * static_cast<double>(key * 37 % 128); // in no order
    Scale bohlen;
    for (int step = 1; step <= 13; ++step)
        bohlen.pitches.emplace_back(Cent(1901.955 * step / 13));
    KeyMapping gaps;
    gaps.referenceKey = 69;
    gaps.referenceHertz = 440.0;
    gaps.degrees = {0, std::nullopt, 3, 5, 6, std::nullopt};
    gaps.octaveDegree = 13;

    const Temperament meantone = Temperament::Meantone();
    const TransposedTemperament low(Temperament::Meantone().fresh(), onD);
    const KeyTemperament keys(hertz);
    const ScaleTemperament scale(bohlen), sparse(bohlen, gaps);
    const TransposedTemperament sparseOnD(sparse.fresh(), onD);
    const struct {
        const char* name;
        const Temperament& temperament;
        std::size_t notes;
    } rows[] = {{"meantone", meantone, 12},  {"low", low, 12},     {"following", following, 12},
                {"keys", keys, 128},         {"scale", scale, 13}, {"gaps", sparse, 13},
                {"gaps on D", sparseOnD, 13}};
    for (const auto& row : rows) {
        const TuningShape sounding = soundingScale(row.temperament, row.name);
        EXPECT_EQ(sounding.scale.pitches.size(), row.notes) << row.name;
        EXPECT_EQ(sounding.scale.description, row.name);
        const ScaleTemperament read = written(sounding);
        for (int key = 0; key < 128; ++key) {
            ASSERT_EQ(read.isMapped(key), row.temperament.isMapped(key)) << row.name << key;
            if (!read.isMapped(key))
                continue;
            ASSERT_NEAR(1200 * std::log2(read.pitchAt(key) / row.temperament.pitchAt(key)), 0.0,
                        1e-6)
                << row.name << " " << key;
        }
    }
}

} // namespace velmora
