#include "desktop/shell/StartPage.h"

#include "app/AppDelegate.h"
#include "app/ExampleChord.h"
#include "preferences/settings.h"
#include "support/RecordingInstrument.h"

#include <QLabel>
#include <QPushButton>
#include <QtTest>
#include <gmock/gmock.h>

namespace velmora {

using testing::Contains;
using testing::ElementsAre;
using testing::Not;

namespace {

QPushButton& named(StartPage& page, const char* accessibleName)
{
    for (QPushButton* button : page.findChildren<QPushButton*>())
        if (button->accessibleName() == accessibleName)
            return *button;
    throw std::runtime_error(accessibleName);
}

std::vector<std::string> texts(StartPage& page)
{
    std::vector<std::string> found;
    for (const QPushButton* button : page.findChildren<QPushButton*>())
        found.push_back(button->text().toStdString());
    return found;
}

} // namespace

TEST(StartPage, SoundsAChordInTheChosenTuning)
{
    Calls calls;
    RecordingInstrument instrument(calls);
    AppDelegate application;
    application.tunings().addBuiltins();
    application.setInstrument(instrument, "Recorder");
    ExampleChord chord(application);
    StartPage page;
    QObject::connect(&page, &StartPage::chordRequested, &chord, &ExampleChord::play);
    calls.clear();
    named(page, "Hear the chord in quarter-comma meantone").click();
    EXPECT_EQ(application.tunings().name(), "Quartercomma Meantone");
    EXPECT_THAT(std::exchange(calls, {}), Contains("play 64 0.80"));
    EXPECT_EQ(application.player().liveKeys().state(64), kPressed) << "for the keyboard";
    named(page, "Hear the chord in equal temperament").click();
    EXPECT_EQ(application.tunings().name(), "Equal");
    EXPECT_THAT(calls, ElementsAre("stop 48", "stop 55", "stop 64", "stop 72", "tune 0 127",
                                   "play 48 0.80", "play 55 0.80", "play 64 0.80", "play 72 0.80"));
    calls.clear();
    EXPECT_TRUE(QTest::qWaitFor([&] { return calls.size() == 4; }, 20000));
    EXPECT_THAT(calls, ElementsAre("stop 48", "stop 55", "stop 64", "stop 72"));
}

TEST(StartPage, ShowsEveryCardEvenBelowAConsole)
{
    StartPage page;
    page.show();
    for (const int height : {600, 160}) {
        page.resize(620, height);
        const QPushButton& last = named(page, "Record a new sequence");
        const auto isInReach = [&] {
            const QRect place(last.mapTo(page.viewport(), QPoint()), last.size());
            return page.viewport()->rect().contains(place);
        };
        EXPECT_TRUE(QTest::qWaitFor(isInReach)) << height;
        EXPECT_EQ(named(page, "Open the user guide").isVisible(), height == 600);
    }
}

TEST(StartPage, OpensExamplesAndTheRecentFilesThatExist)
{
    QTemporaryDir folder;
    const QString piece = folder.filePath("fish & chips.mid");
    QFile(piece).open(QIODevice::WriteOnly);
    setPreference("recentFiles", QStringList{folder.filePath("gone.mid"), piece});
    StartPage page;
    QSignalSpy chosen(&page, &StartPage::fileChosen);
    EXPECT_THAT(texts(page), Contains("fish && chips.mid"));
    EXPECT_THAT(texts(page), Not(Contains("gone.mid")));
    named(page, "Open fish & chips.mid").click();
    EXPECT_EQ(chosen.takeFirst().at(0).toString(), piece);
    named(page, "Open Wolf fantasia (piece)").click();
    EXPECT_TRUE(QFileInfo::exists(chosen.takeFirst().at(0).toString()));
    setPreference("recentFiles", {});
    page.showRecentFiles();
    EXPECT_THAT(texts(page), Not(Contains("fish && chips.mid")));
}

TEST(StartPage, ShowsItsButtonsWholeInLittleRoom)
{
    StartPage page;
    QFont font = page.font();
    for (const int size : {9, 14}) {
        font.setPointSize(size);
        page.setFont(font);
        for (const QSize room : {QSize(600, 500), QSize(210, 150)}) {
            page.resize(room);
            page.show();
            ASSERT_TRUE(QTest::qWaitForWindowExposed(&page));
            for (const auto* button : page.findChildren<QPushButton*>())
                if (button->isVisible()) {
                    const int right = button->mapTo(&page, button->rect().bottomRight()).x();
                    EXPECT_LT(right, page.viewport()->width())
                        << size << " pt: " << button->text().toStdString();
                }
        }
    }
}

} // namespace velmora
