#include "desktop/practice/PracticePanel.h"

#include "desktop/keyboard/KeyboardView.h"
#include "desktop/practice/FallingNotes.h"
#include "desktop/practice/PracticePicture.h"
#include "desktop/roll/SequenceStatus.h"
#include "midi/midiRead.h"
#include "preferences/Preferences.h"
#include "sequencer/PracticeResult.h"
#include "support/SequenceTest.h"

#include <QCheckBox>
#include <QComboBox>
#include <QImage>
#include <QLabel>
#include <QListWidget>
#include <QPainter>
#include <QPushButton>
#include <QSignalSpy>
#include <QSpinBox>
#include <QTemporaryDir>

#include <algorithm>

namespace velmora {

namespace {

class SilentInput : public LiveInput {
    void keyOn(int /*key*/, float /*velocity*/) override {}
    void keyOff(int /*key*/) override {}
    void setVolume(float /*volume*/, std::size_t /*slider*/) override {}
    void midiInput() override {}
};

/// A piece with a bass on channel 0 and a melody on channel 1, in bars of 32 steps.
class PracticePanelTest : public SequenceTest {
protected:
    PracticePanelTest()
    {
        for (const double bar : {0.0, 32.0, 64.0}) {
            put(48, bar, 0);
            put(72, bar + 16.0, 1);
        }
        panel_.setDocument(&piece_);
    }

    ~PracticePanelTest() override
    {
        panel_.setDocument(nullptr);
        for (const char* key :
             {"PracticeHand", "PracticeSplit", "PracticeFaster", "PracticeTolerance",
              "PracticeSlowsDown", "PracticeWaits", "FallingNotes", "KeyRangeLo", "KeyRangeHi"})
            resetPref(key);
    }

    void put(unsigned key, double start, unsigned channel)
    {
        piece_.edit()->addNote(
            {.start = start, .length = 8.0, .velocity = 1.0F, .channel = channel, .key = key});
        piece_.updateExtent();
    }

    template <class Box> Box& box(const char* name)
    {
        for (Box* found : panel_.findChildren<Box*>())
            if (found->accessibleName() == name || found->toolTip().startsWith(name))
                return *found;
        throw std::runtime_error(name);
    }

    QPushButton& button() { return *panel_.findChild<QPushButton*>(); }

    SequenceDocument piece_{*this, Reading::Musical, [this] { return now_; }};
    PracticePanel panel_;
};

} // namespace

TEST_F(PracticePanelTest, PractisesWhatIsChosen)
{
    box<QListWidget>("The voices").item(0)->setCheckState(Qt::Unchecked);
    panel_.findChild<QComboBox*>()->setCurrentIndex(1); // the right hand
    setPrefInt("KeyRangeHi", 90);
    const PracticePart part = panel_.options().part;
    EXPECT_EQ(part.channels.to_ulong() & 3U, 2U) << "not the bass";
    EXPECT_EQ(part.lowestKey, 60U);
    EXPECT_EQ(part.highestKey, 90U) << "the keyboard ends there";

    box<QSpinBox>("First bar").setValue(2);
    box<QSpinBox>("Last bar").setValue(3);
    const auto checks = panel_.findChildren<QCheckBox*>();
    QCheckBox* repeats = *std::ranges::find(checks, "Repeat bars", &QCheckBox::text);
    EXPECT_FALSE(box<QSpinBox>("First bar").isEnabled()) << "they are not used";
    repeats->setChecked(true);
    EXPECT_TRUE(box<QSpinBox>("First bar").isEnabled());
    EXPECT_EQ(piece_.transport().interval().start, 32.0);
    EXPECT_EQ(piece_.transport().interval().end, 96.0);
    EXPECT_TRUE(piece_.transport().loops());

    QSignalSpy finished(&panel_, &PracticePanel::finished);
    QSignalSpy scrolled(&piece_.transport(), &Transport::scrolled);
    button().click();
    EXPECT_TRUE(piece_.practiceSession().isRunning());
    now_ += 0.1;
    piece_.transport().tick();
    ASSERT_EQ(scrolled.size(), 1) << "the roll follows";
    EXPECT_EQ(scrolled.front().front().toDouble(), piece_.transport().position() - 8.0);
    panel_.setDocument(&piece_);
    EXPECT_TRUE(piece_.practiceSession().isRunning()) << "the same piece is shown, but saved";
    EXPECT_TRUE(repeats->isChecked());
    button().click();
    EXPECT_FALSE(piece_.practiceSession().isRunning());
    EXPECT_EQ(finished.size(), 0) << "no key was struck";
    button().click();
    press(40);
    now_ += 0.1;
    piece_.transport().tick();
    panel_.setDocument(nullptr);
    EXPECT_FALSE(piece_.practiceSession().isRunning()) << "another piece is shown";
    EXPECT_FALSE(box<QSpinBox>("First bar").isEnabled());
    EXPECT_TRUE(piece_.transport().loops());
    EXPECT_EQ(finished.size(), 1);
}

TEST_F(PracticePanelTest, RemembersHowThePlayerPractises)
{
    panel_.findChild<QComboBox*>()->setCurrentIndex(2);
    for (QCheckBox* check : panel_.findChildren<QCheckBox*>())
        check->toggle();
    for (QSpinBox* number : panel_.findChildren<QSpinBox*>())
        number->stepUp();
    PracticePanel later;
    const PracticeOptions before = panel_.options(), options = later.options();
    EXPECT_EQ(options.part.highestKey, 60U) << "the left hand";
    EXPECT_FALSE(options.waits);
    EXPECT_TRUE(options.slowsDown);
    EXPECT_DOUBLE_EQ(options.tolerance, 0.201);
    EXPECT_DOUBLE_EQ(options.speedStep, 0.06);
    EXPECT_EQ(before.part.highestKey, options.part.highestKey);
    EXPECT_TRUE(later.findChildren<QCheckBox*>().back()->isChecked()) << "falling notes";
}

TEST_F(PracticePanelTest, RemembersTheVoicesAndBarsOfAPiece)
{
    const QTemporaryDir folder;
    const auto path = [&](const char* name) { return folder.filePath(name).toStdString(); };
    constexpr auto kMidi = SequenceFormat::MidiFile;
    ASSERT_TRUE(piece_.save(path("other.mid"), kMidi, SequenceDocument::SaveOperation::SaveAs));
    ASSERT_TRUE(piece_.save(path("piece.mid"), kMidi, SequenceDocument::SaveOperation::SaveAs));
    auto& list = *panel_.findChild<QListWidget*>();
    list.item(0)->setCheckState(Qt::Unchecked);
    box<QSpinBox>("First bar").setValue(2);
    box<QSpinBox>("Last bar").setValue(2);
    button().click();
    button().click();
    SequenceDocument other(*this, Reading::Musical);
    other.read(path("other.mid"));
    panel_.setDocument(&other);
    list.item(0)->setCheckState(Qt::Checked);
    box<QSpinBox>("Last bar").setValue(3);
    SequenceDocument again(*this, Reading::Musical);
    again.read(path("piece.mid"));
    panel_.setDocument(&again);
    EXPECT_EQ(panel_.options().part.channels.to_ulong() & 3U, 2U);
    EXPECT_EQ(box<QSpinBox>("Last bar").value(), 2);
    panel_.setDocument(&piece_);
}

TEST_F(PracticePanelTest, NamesTheVoices)
{
    const auto& list = *panel_.findChild<QListWidget*>();
    list.item(0)->setCheckState(Qt::Unchecked);
    Voices voices = piece_.voices();
    voices[1].name = "Flöte";
    piece_.setVoices(voices, {});
    ASSERT_EQ(list.count(), 2);
    EXPECT_EQ(list.item(0)->text(), "Voice 1");
    EXPECT_EQ(list.item(0)->checkState(), Qt::Unchecked) << "stays as it was chosen";
    EXPECT_EQ(list.item(1)->text(), "Flöte");
    put(36, 0.0, 9);
    ASSERT_EQ(list.count(), 3);
    EXPECT_EQ(list.item(1)->checkState(), Qt::Checked);
    EXPECT_EQ(list.item(2)->checkState(), Qt::Unchecked) << "drums play along";
}

TEST_F(PracticePanelTest, SaysWhichKeysComeNext)
{
    const SequenceStatus status(piece_);
    PracticeOptions options;
    options.part.channels = 0b10;
    const auto says = [&](const QString& text) {
        EXPECT_TRUE(piece_.practiceSession().start(options));
        now_ += 0.1;
        piece_.transport().tick();
        return std::ranges::any_of(status.findChildren<QLabel*>(),
                                   [&](const QLabel* label) { return label->text() == text; });
    };
    EXPECT_TRUE(says("Waiting for C5"));
    options.waits = false;
    EXPECT_TRUE(says("Next: C5"));
    piece_.practiceSession().stop();
}

TEST_F(PracticePanelTest, LetsNotesFallOntoTheirKeys)
{
    SilentInput input;
    KeyboardView keyboard(input, liveKeys_);
    FallingNotes notes(keyboard);
    keyboard.resize(1000, 100);
    notes.resize(1000, 640); // ten pixels a step
    notes.setDocument(&piece_);
    const KeyboardPicture keys = keyboard.picture();
    const QRgb background = notes.palette().color(QPalette::Base).rgb();
    const auto colorAt = [&](unsigned key, int fromBelow) {
        for (const KeyQuad& quad : keys.geometry.keys(1.0F))
            if (quad.key == static_cast<int>(key))
                return notes.grab().toImage().pixel(
                    static_cast<int>(keys.origin + (quad.left + quad.right) / 2), 639 - fromBelow);
        return background;
    };
    EXPECT_NE(colorAt(48, 40), background) << "from 0 to 8";
    EXPECT_EQ(colorAt(48, 90), background);
    EXPECT_NE(colorAt(72, 200), background) << "from 16 to 24";
    const QRgb melody = colorAt(72, 200), bass = colorAt(48, 40);
    piece_.transport().setPosition(16.0);
    EXPECT_EQ(colorAt(72, 40), melody) << "it has fallen";
    piece_.transport().setPosition(0.0);

    PracticeOptions options;
    options.part.channels = 0b10;
    ASSERT_TRUE(piece_.practiceSession().start(options));
    EXPECT_EQ(colorAt(72, 200), melody);
    const QRgb others = colorAt(48, 40);
    EXPECT_NE(others, bass) << "grey, because nobody waits for it";
    piece_.practiceSession().stop();
    setPrefInt("KeyRangeHi", 70);
    piece_.transport().setPosition(0.0);
    const QImage image = notes.grab().toImage();
    const KeyboardPicture fewer = keyboard.picture();
    const int edge = static_cast<int>(fewer.origin + fewer.geometry.right()) - 3;
    EXPECT_EQ(image.pixel(edge, 639 - 200), others) << "no key of the keyboard plays it";
    notes.setDocument(nullptr);
}

TEST(PracticePicture, ShowsBarsAndDelays)
{
    PracticeSummary summary{.bars = {{1, 4, 0, 0}, {2, 1, 3, 0}}};
    summary.delays.front() = 1;
    const auto picture = [&] {
        QImage image(400, 400, QImage::Format_RGB32);
        QPainter painter(&image);
        paintPractice(painter, image.size(), summary, QPalette());
        return image;
    };
    const QImage first = picture();
    EXPECT_EQ(picture(), first);
    std::swap(summary.bars[1].right, summary.bars[1].wrong);
    EXPECT_NE(picture(), first) << "wrong keys look different";
    std::swap(summary.bars[1].right, summary.bars[1].wrong);
    std::swap(summary.bars[0].right, summary.bars[0].missed);
    EXPECT_NE(picture(), first) << "missed keys look different";
    std::swap(summary.bars[0].right, summary.bars[0].missed);
    std::swap(summary.delays.front(), summary.delays.back());
    EXPECT_NE(picture(), first);
}

} // namespace velmora
