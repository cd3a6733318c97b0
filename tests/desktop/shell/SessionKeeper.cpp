#include "desktop/shell/SessionKeeper.h"

#include "base/File.h"
#include "desktop/shell/Desktop.h"
#include "desktop/shell/SequencePage.h"
#include "platform/pathNames.h"
#include "preferences/Preferences.h"
#include "preferences/settings.h"
#include "support/Bank.h"
#include "support/OrganFolder.h"
#include "support/answering.h"

#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QTimer>
#include <QtTest>
#include <gmock/gmock.h>

#include <algorithm>

namespace velmora {

using testing::ElementsAre;
using testing::HasSubstr;

namespace {

class SessionKeeperTest : public testing::Test {
protected:
    ~SessionKeeperTest() override
    {
        for (const char* name : {"last.velmora", "last.opening"})
            std::filesystem::remove(settingsFolder() / name);
    }

    /// Starts the program, calls `use` and quits.
    template <class Use> static void run(const Use& use)
    {
        Desktop desktop;
        desktop.launch();
        desktop.application().waitForBank();
        desktop.openLastSession();
        use(desktop);
        EXPECT_TRUE(desktop.pages().closeAll());
    }

    OrganFolder folder;
    QString piece()
    {
        const auto copy = folder.path() / "a.mid";
        std::filesystem::copy_file(VELMORA_EXAMPLES "/wolf-fantasia.mid", copy,
                                   std::filesystem::copy_options::overwrite_existing);
        return textOf(copy);
    }
};

} // namespace

TEST_F(SessionKeeperTest, StartsAsItEnded)
{
    run([&](Desktop& desktop) {
        EXPECT_EQ(desktop.pages().current(), nullptr) << "the first start";
        desktop.open({textOf(kBank), VELMORA_EXAMPLES "/werckmeister-3.scl", piece()});
        desktop.pages().current()->document().transport().setPosition(20.0);
        desktop.pages().create();
        desktop.application().setVolumeOfStop(0, 0.25F);
        desktop.workspace().setLayout(Workspace::Layout::Edit);
    });
    run([&](Desktop& desktop) {
        EXPECT_EQ(desktop.application().instruments().size(), 2U);
        EXPECT_TRUE(desktop.application().isCurrent(*desktop.application().instruments()[1]));
        desktop.application().player().with([](const Instrument& current, const Temperament&) {
            EXPECT_FLOAT_EQ(current.getVolume(0), 0.25F);
        });
        EXPECT_EQ(desktop.application().tunings().name(), "werckmeister-3.scl");
        ASSERT_EQ(desktop.pages().all().size(), 1U) << "the untitled one was not saved";
        const SequenceDocument& document = desktop.pages().current()->document();
        EXPECT_EQ(document.transport().position(), 20.0);
        for (const Note& note : document.sequence().notes()) {
            if (note.start == 0.0 || note.start == 20.0) {
                EXPECT_EQ(document.practice().stateOfNote(note.key), note.start > 0 ? kWanted : 0);
            }
        }
        const auto labels = desktop.pages().current()->findChildren<QLabel*>();
        EXPECT_EQ(std::ranges::count(labels, "Waiting for A4", &QLabel::text), 1);
    });
    setPreference("StartAsLastTime", false);
    run([&](Desktop& desktop) {
        EXPECT_EQ(desktop.application().instruments().size(), 1U);
        EXPECT_EQ(desktop.pages().current(), nullptr);
    });
    resetPref("StartAsLastTime");
}

TEST_F(SessionKeeperTest, AsksAfterAnEndWhileItOpenedTheLastSession)
{
    run([&](Desktop& desktop) { desktop.open({piece()}); });
    for (const auto& [answer, pieces] :
         {std::pair("Start Empty", 0U), std::pair("Open Again", 1U)}) {
        std::ofstream(settingsFolder() / "last.opening") << "as after a crash";
        Desktop desktop;
        desktop.launch();
        EXPECT_THAT(answering({answer}, [&] { desktop.openLastSession(); }),
                    ElementsAre(HasSubstr("ended while")));
        EXPECT_EQ(desktop.pages().all().size(), pieces) << answer;
        EXPECT_FALSE(SessionKeeper::wasInterrupted()) << "it does not ask again";
    }
}

TEST_F(SessionKeeperTest, OpensSessionFilesBesideWhatIsOpen)
{
    const auto file = textOf(folder.path() / "s.velmora");
    run([&](Desktop& desktop) {
        desktop.open({piece(), VELMORA_EXAMPLES "/kirnberger-3.scl"});
        desktop.workspace().setLayout(Workspace::Layout::Edit);
        SessionKeeper(desktop.application(), desktop.workspace(), desktop.pages())
            .save(pathOf(file));
    });
    std::filesystem::remove(folder.path() / "a.mid");
    std::filesystem::remove(settingsFolder() / "last.velmora");
    run([&](Desktop& desktop) {
        desktop.pages().create();
        desktop.workspace().setLayout(Workspace::Layout::Play);
        EXPECT_THAT(answering({"OK"}, [&] { desktop.open({file}); }),
                    ElementsAre("a.mid: cannot be read (No such file or directory)"));
        EXPECT_EQ(desktop.pages().all().size(), 1U);
        EXPECT_EQ(desktop.application().tunings().name(), "kirnberger-3.scl");
        EXPECT_EQ(desktop.workspace().layout(), Workspace::Layout::Edit);

        std::ofstream(pathOf(file)) << R"({"velmoraSession": 1, "tuning": "Equal", "program": -1})";
        EXPECT_THAT(answering({"OK"}, [&] { desktop.open({file}); }),
                    ElementsAre(R"(s.velmora: "program" is not a whole number from 0 to 127)"));
        EXPECT_EQ(desktop.application().tunings().name(), "kirnberger-3.scl")
            << "nothing has changed";
    });
}

} // namespace velmora
