#include "desktop/tuning/TuningStudio.h"

#include "app/AppDelegate.h"
#include "desktop/tuning/CircleView.h"
#include "desktop/tuning/FifthsEditor.h"
#include "desktop/tuning/TuningShaper.h"
#include "support/OrganFolder.h"
#include "support/RecordingInstrument.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QPushButton>
#include <QSpinBox>
#include <QTabWidget>
#include <QTableWidget>
#include <QtTest>
#include <gtest/gtest.h>

#include <cmath>

namespace velmora {

namespace {

class TuningStudioTest : public testing::Test {
protected:
    TuningStudioTest()
    {
        application_.tunings().addBuiltins();
        application_.setInstrument(instrument_, "Recorder");
    }

    Tunings& tunings() { return application_.tunings(); }

    /// Returns how far a key lies above middle C as it is heard, in cents.
    double heard(unsigned key)
    {
        const TuningMoment moment = readMoment(application_.player());
        return 1200.0 * std::log2(moment.hertz[key] / moment.hertz[60]);
    }

    QPushButton& button(TuningStudio& studio, const QString& text)
    {
        for (auto* each : studio.findChildren<QPushButton*>())
            if (each->text() == text)
                return *each;
        throw std::out_of_range(text.toStdString());
    }

    AppDelegate application_;
    Calls calls_;
    RecordingInstrument instrument_{calls_};
};

} // namespace

TEST_F(TuningStudioTest, ShapesACopyThatIsHeardAtOnce)
{
    TuningShaper shaper(tunings());
    shaper.begin();
    shaper.setCents(4, 386.0);
    EXPECT_EQ(tunings().name(), "Equal (edited)");
    EXPECT_NEAR(heard(64), 386.0, 1e-6);
    shaper.setCents(4, 387.0);
    shaper.begin();
    shaper.setCents(7, 702.0);
    EXPECT_NEAR(heard(64), 387.0, 1e-6);
    EXPECT_NEAR(heard(67), 702.0, 1e-6);

    shaper.hearOriginal(true);
    EXPECT_NEAR(heard(67), 700.0, 1e-6);
    shaper.hearOriginal(false);
    EXPECT_NEAR(heard(67), 702.0, 1e-6);

    shaper.undoStack().undo();
    EXPECT_NEAR(heard(67), 700.0, 1e-6);
    EXPECT_NEAR(heard(64), 387.0, 1e-6) << "each gesture is undone on its own";
    shaper.undoStack().undo();
    EXPECT_NEAR(heard(64), 400.0, 1e-6) << "and as a whole";
    shaper.undoStack().redo();
    EXPECT_NEAR(heard(64), 387.0, 1e-6);

    EXPECT_TRUE(tunings().select("Equal"));
    EXPECT_NEAR(heard(64), 400.0, 1e-6) << "the original stays as it was";
    EXPECT_FALSE(shaper.undoStack().canUndo());
    shaper.setCents(4, 390.0);
    EXPECT_EQ(tunings().name(), "Equal (edited, 2)") << "the first copy is not lost";
    shaper.setCents(12, 1300.0);
    EXPECT_NEAR(heard(72), 1200.0, 1e-6) << "the period stays";
    EXPECT_TRUE(tunings().select("Dynamic"));
    EXPECT_EQ(shaper.notes(), 0U);
}

TEST(TuningShaper, ShapesTheTuningOfTheStart)
{
    AppDelegate application;
    const TuningShaper shaper(application.tunings()); // made with the window, before the tunings
    application.tunings().addBuiltins();
    EXPECT_EQ(shaper.notes(), 12U);
}

TEST_F(TuningStudioTest, SavesAScaleThatSoundsTheSame)
{
    EXPECT_TRUE(tunings().select("Quartercomma Meantone"));
    TuningShaper shaper(tunings());
    shaper.setCents(8, 813.686);
    const OrganFolder folder;
    const std::filesystem::path path = folder.path() / "mine.scl";
    shaper.save(path, "Mine");
    EXPECT_FALSE(std::filesystem::exists(folder.path() / "mine.kbm")) << "it needs no mapping";
    TuningDocument again;
    ASSERT_TRUE(again.read(path, TuningFormat::Scale)) << again.errorString();
    EXPECT_EQ(again.description(), "Mine");
    for (int key = 48; key < 72; ++key)
        EXPECT_NEAR(again.temperament().pitchAt(key),
                    tunings().current()->temperament().pitchAt(key), 1e-6)
            << key;
}

TEST_F(TuningStudioTest, ItsControlsFollowAndShapeTheTuning)
{
    TuningStudio studio(application_);
    studio.show();
    auto& tabs = *studio.findChild<QTabWidget*>();
    tabs.setCurrentIndex(1);
    QApplication::processEvents();
    const auto fields = studio.findChildren<QDoubleSpinBox*>();
    ASSERT_EQ(fields.size(), 11);
    fields[3]->setValue(390.5);
    EXPECT_NEAR(heard(64), 390.5, 1e-6);
    button(studio, "Undo").click();
    EXPECT_EQ(fields[3]->value(), 400.0);
    button(studio, "Hear the Original").click();
    button(studio, "Redo").click();
    EXPECT_FALSE(button(studio, "Hear the Original").isChecked()) << "a change is heard";

    EXPECT_TRUE(tunings().select("Quartercomma Meantone"));
    auto& editor = *studio.findChild<FifthsEditor*>();
    const auto numbers = editor.findChildren<QSpinBox*>();
    ASSERT_EQ(numbers.size(), 13);
    EXPECT_EQ(numbers[0]->value(), 4) << "parts of the syntonic comma";
    EXPECT_EQ(numbers[1]->value(), 1) << "C–G is narrowed by one";
    numbers[1]->setValue(0);
    EXPECT_NEAR(heard(67), 701.955, 1e-3);
    EXPECT_NEAR(heard(62), 193.157 + 5.3766, 1e-2) << "the fifths above move with it";

    EXPECT_TRUE(tunings().select("Pure"));
    EXPECT_FALSE(button(studio, "Undo").isVisible());
}

TEST_F(TuningStudioTest, DraggingOnTheCircleRaisesTheNoteOfTheKey)
{
    tunings().setTransposition({.root = 2, .a = std::nullopt});
    TuningStudio studio(application_);
    studio.resize(420, 480);
    studio.show();
    auto& view = *studio.findChild<CircleView*>();
    ASSERT_EQ(view.circle().notes.size(), 12U);
    const CircleGeometry places(view.size(), 12);
    const double before = heard(69);
    const QPoint from = places.note(3).toPoint(); // A, at three o'clock
    QTest::mousePress(&view, Qt::LeftButton, {}, from);
    QTest::mouseMove(&view, from + QPoint(20, 0));
    QTest::mouseRelease(&view, Qt::LeftButton, {}, from + QPoint(20, 0));
    EXPECT_NEAR(heard(69), before + 5.0, 0.01);
}

TEST_F(TuningStudioTest, ExplainsTheChordAndRatesItsKeys)
{
    TuningStudio studio(application_);
    std::array<Purity, kKeys> rated{};
    QObject::connect(&studio, &TuningStudio::keysRated, &studio,
                     [&](const std::array<Purity, kKeys>& purities) { rated = purities; });
    studio.show();
    studio.findChild<QTabWidget*>()->setCurrentIndex(2);
    auto* lights = studio.findChild<QCheckBox*>("lightsKeys");
    lights->setChecked(true);
    for (const int key : {64, 67, 72})
        application_.player().keyOn(key, 1.0F);
    const auto shows = [&](const QString& text) {
        for (auto* label : studio.findChildren<QLabel*>())
            if (label->isVisible() && label->text().contains(text))
                return true;
        return false;
    };
    EXPECT_TRUE(QTest::qWaitFor([&] { return shows("C major, first inversion"); }));
    auto& table = *studio.findChild<QTableWidget*>("intervals");
    ASSERT_EQ(table.rowCount(), 3);
    EXPECT_EQ(table.item(1, 0)->text(), "E4–C5");
    EXPECT_EQ(table.item(1, 1)->text(), "Minor sixth 8/5");
    EXPECT_EQ(table.item(1, 3)->text(), "−13.7");
    EXPECT_EQ(rated[64], Purity::Tempered);
    lights->setChecked(false);
    EXPECT_EQ(rated[64], Purity::None);

    EXPECT_TRUE(tunings().select("Following Meantone"));
    EXPECT_TRUE(QTest::qWaitFor([&] { return shows("Drift from the start"); }));
}

} // namespace velmora
