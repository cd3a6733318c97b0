#include "desktop/roll/RollColors.h"

#include "desktop/keyboard/KeyboardPicture.h"
#include "desktop/roll/RollPicture.h"
#include "preferences/Preferences.h"
#include "support/SequenceTest.h"

#include <gmock/gmock.h>

namespace velmora {

namespace {

/// As dark as that of many dark themes.
constexpr QRgb kHighlight = 0x12608a;

class RollColorsTest : public SequenceTest {
protected:
    ~RollColorsTest() override
    {
        for (const char* key : {"Scheme", "NoteColor"})
            resetPref(key);
    }

    static QPalette theme(QRgb base, QRgb text)
    {
        QPalette palette;
        palette.setColor(QPalette::Base, QColor(base));
        palette.setColor(QPalette::Text, QColor(text));
        palette.setColor(QPalette::Highlight, QColor(kHighlight));
        return palette;
    }

    /// How many quads of a picture have a colour.
    std::size_t count(const RollPicture& picture, RollShade color)
    {
        const auto& vertices = picture.vertices();
        std::size_t quads = 0;
        for (std::size_t i = 0; i < vertices.size(); i += 4)
            quads += vertices[i].color == color && vertices[i + 3].color == color ? 1 : 0;
        return quads;
    }

    RollPicture drawn(const RollColors& colors, int keyHeight = 8)
    {
        RollIndex index;
        index.rebuild(document_.sequence().notes());
        RollPicture picture;
        picture.draw({14, keyHeight, 0, 0, 128.0 * 14, 1000}, colors, 1.0, document_, index);
        return picture;
    }
};

QColor asColor(RollShade shade)
{
    return {shade[0], shade[1], shade[2]};
}

} // namespace

TEST_F(RollColorsTest, NotesAndKeysStandOutInEveryTheme)
{
    for (const auto& [base, text] : {std::pair<QRgb, QRgb>{0xffffff, 0x000000},
                                     {0xf4f4f4, 0x232629},
                                     {0x1e1e1e, 0xffffff},
                                     {0x353535, 0xeeeeee},
                                     {0x000000, 0xffffff}}) {
        const QPalette palette = theme(base, text);
        const RollColors colors(palette);
        std::vector<RollShade> notes{colors.playing, colors.recorded, colors.outline,
                                     colors.leftOut, colors.selected};
        for (unsigned channel = 0; channel < 16; ++channel)
            for (const float velocity : {0.0F, 0.5F, 1.0F})
                notes.push_back(colors.atRest({.velocity = velocity, .channel = channel}));
        for (const RollShade column : {colors.whiteColumn, colors.blackColumn, colors.middleC})
            for (const RollShade note : notes)
                EXPECT_GE(contrast(asColor(note), asColor(column)), 3.0)
                    << base << ": " << asColor(note).name().toStdString();
        const auto strength = [&](RollShade line) {
            return contrast(asColor(line), asColor(colors.whiteColumn));
        };
        EXPECT_LT(strength(colors.stepLine), strength(colors.beatLine)) << base;
        EXPECT_LT(strength(colors.beatLine), strength(colors.barLine)) << base;
        EXPECT_LT(strength(colors.blackColumn), 1.2) << base;
        EXPECT_LT(contrast(asColor(colors.whiteColumn), QColor(base)), 1.2)
            << "as dark as the theme";
        for (const char* key : {"KeyColor", "KeyColorCorrect", "KeyColorSustain", "KeyColorWrong"})
            for (const QRgb face : {0xffffff, 0x2b2b31})
                EXPECT_GE(contrast(schemeColor(key, palette).toQColor(), QColor(face)), 3.0) << key;
    }
}

TEST_F(RollColorsTest, NotesThatNeedNotBePractisedAreGray)
{
    add(60, 8.0, 4.0);
    add(72, 8.0, 4.0);
    RollColors colors(theme(0xffffff, 0));
    EXPECT_EQ(count(drawn(colors), colors.leftOut), 0U);
    colors.practised = PracticePart{.lowestKey = 48, .highestKey = 71};
    EXPECT_GT(count(drawn(colors), colors.leftOut), 0U);
    EXPECT_EQ(colors.of(document_.sequence().notes()[1]), asColor(colors.leftOut));
    EXPECT_NE(colors.of(document_.sequence().notes()[0]), asColor(colors.leftOut));
}

TEST_F(RollColorsTest, ColorsFollowTheVoiceUnlessTheUserHasChosenOne)
{
    const Note soft{.velocity = 0.1F, .channel = 0}, loud{.velocity = 1.0F, .channel = 0};
    const Note other{.velocity = 1.0F, .channel = 1};
    const RollColors calm(theme(0xffffff, 0));
    EXPECT_NE(calm.atRest(soft), calm.atRest(loud));
    EXPECT_NE(calm.atRest(other), calm.atRest(loud));
    setPrefColor("NoteColor", Color("NoteColor")); // the default, but chosen
    const RollColors chosen(theme(0xffffff, 0));
    EXPECT_EQ(chosen.atRest(soft), (RollShade{255, 0, 0, 255}));
    EXPECT_EQ(chosen.atRest(other), (RollShade{255, 0, 0, 255}));
    EXPECT_EQ(chosen.whiteColumn, calm.whiteColumn) << "everything else stays calm";
}

TEST_F(RollColorsTest, DrawsBlocksThatTellTheStatesOfNotesApart)
{
    add(60, 0, 4);
    add(60, 4, 4);
    const RollColors colors(theme(0xffffff, 0));
    const RollGeometry geometry{14, 8, 0, 0, 2000, 1000};
    const auto& notes = document_.sequence().notes();
    EXPECT_LT(geometry.block(notes[0]).top, geometry.block(notes[1]).bottom) << "a clear end";
    EXPECT_EQ(count(drawn(colors), colors.onset(colors.atRest(notes[0]))), 2);
    EXPECT_EQ(count(drawn(colors, 1), colors.atRest(notes[0])), 2) << "too low for corners";
    document_.edit()->at(0).active = true;
    EXPECT_GT(count(drawn(colors), colors.playing), 0);
    const std::size_t lines = count(drawn(colors), colors.selected);
    document_.edit()->select(document_.edit()->at(0));
    EXPECT_EQ(count(drawn(colors), colors.playing), 0) << "selected comes first";
    EXPECT_GT(count(drawn(colors), colors.selected), lines);
    EXPECT_GT(count(drawn(colors), colors.outline), 0);
    EXPECT_EQ(count(drawn(colors), colors.barLine), 4) << "steps 0, 32, 64 and 96";

    recorder_.record();
    press(72);
    tick(0.1);
    tick(0.1);
    EXPECT_GT(count(drawn(colors), colors.recorded), 0);
    recorder_.record();
    EXPECT_EQ(count(drawn(colors), colors.recorded), 0);
}

} // namespace velmora
