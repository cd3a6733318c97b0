#include "tuning/chordName.h"

#include "tuning/spelling.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <string>

namespace velmora {

namespace {

using Kind = Chord::Kind;

std::optional<Chord> nameOf(std::initializer_list<unsigned> keys,
                            const SpelledClasses& spelled = {})
{
    std::bitset<12> classes;
    for (const unsigned key : keys)
        classes.set(key % 12);
    return nameChord(classes, *keys.begin() % 12, spelled);
}

std::string spelled(const Chord& chord)
{
    std::string names;
    for (const auto& place : spell(chord))
        if (place)
            names += placeName(*place) + ' ';
    return names;
}

} // namespace

TEST(ChordName, KnowsInversionsAndDoublings)
{
    const struct {
        std::initializer_list<unsigned> keys;
        Chord chord;
    } rows[] = {{{60, 64, 67}, {Kind::Major, 0, 0}},
                {{52, 60, 67, 76}, {Kind::Major, 0, 1}},
                {{55, 60, 64}, {Kind::Major, 0, 2}},
                {{62, 65, 69}, {Kind::Minor, 2, 0}},
                {{59, 62, 65}, {Kind::Diminished, 11, 0}},
                {{64, 68, 72}, {Kind::Augmented, 4, 0}},
                {{60, 65, 67}, {Kind::SuspendedFourth, 0, 0}},
                {{65, 67, 72}, {Kind::SuspendedSecond, 5, 0}},
                {{67, 71, 74, 77}, {Kind::DominantSeventh, 7, 0}},
                {{65, 67, 71, 74}, {Kind::DominantSeventh, 7, 3}},
                {{60, 64, 67, 69}, {Kind::MinorSeventh, 9, 1}},
                {{60, 64, 67, 71}, {Kind::MajorSeventh, 0, 0}},
                {{57, 60, 64, 68}, {Kind::MinorMajorSeventh, 9, 0}},
                {{59, 62, 65, 69}, {Kind::HalfDiminished, 11, 0}},
                {{62, 65, 68, 71}, {Kind::DiminishedSeventh, 2, 0}}};
    for (const auto& row : rows) {
        const auto chord = nameOf(row.keys);
        ASSERT_TRUE(chord) << *row.keys.begin();
        EXPECT_EQ(*chord, row.chord) << *row.keys.begin();
    }
    for (const auto& keys : {std::initializer_list<unsigned>{60}, {60, 64}, {60, 61, 62}})
        EXPECT_FALSE(nameOf(keys)) << keys.size();
}

TEST(ChordName, TellsTheAugmentedSixthByItsSpelling)
{
    SpelledClasses places{};
    places[8] = -4; // A flat
    places[0] = 0;
    places[3] = -3;
    places[6] = 6; // F sharp
    EXPECT_EQ(nameOf({56, 60, 63, 66}, places), (Chord{Kind::AugmentedSixth, 8, 0}));
    EXPECT_EQ(nameOf({66, 68, 72, 75}, places), (Chord{Kind::AugmentedSixth, 8, 3}));
    places[6] = -6; // G flat
    EXPECT_EQ(nameOf({56, 60, 63, 66}, places), (Chord{Kind::DominantSeventh, 8, 0}));
}

TEST(ChordName, SpellsChordsAsUsual)
{
    EXPECT_EQ(spelled({Kind::Major, 8}), "C Eb Ab ");
    EXPECT_EQ(spelled({Kind::Major, 4}), "E G# B ");
    EXPECT_EQ(spelled({Kind::Minor, 8}), "D# G# B ");
    EXPECT_EQ(spelled({Kind::Minor, 3}), "Eb Gb Bb ");
    EXPECT_EQ(spelled({Kind::DominantSeventh, 10}), "D F Ab Bb ");
    EXPECT_EQ(spelled({Kind::DiminishedSeventh, 8}), "D F G# B ");
    EXPECT_EQ(spelled({Kind::AugmentedSixth, 8}), "C Eb F# Ab ");
}

} // namespace velmora
