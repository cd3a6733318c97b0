#include "desktop/shell/SequenceSaver.h"

#include "desktop/shell/PiecesTest.h"
#include "desktop/shell/StatusLine.h"
#include "platform/pathNames.h"

#include <QProgressDialog>
#include <QTabWidget>
#include <QTemporaryDir>

namespace velmora {

using testing::ElementsAre;
using testing::EndsWith;
using testing::StartsWith;

using SequenceSaverTest = PiecesTest;

namespace {

/// A session manager that notes what it is told.
struct LogoutManager {
    bool mayAsk = true;
    std::vector<std::string> told{};

    bool allowsInteraction() const { return mayAsk; }
    void release() { told.emplace_back("release"); }
    void cancel() { told.emplace_back("cancel"); }
};

} // namespace

TEST_F(SequenceSaverTest, AsksBeforeItLosesChanges)
{
    SequencePage& window = open();
    EXPECT_FALSE(window.isWindowModified());
    draw(window);
    EXPECT_TRUE(window.isWindowModified());
    answering({"Cancel"}, [&] { EXPECT_FALSE(closes(window)); });
    answering({"Cancel"}, [&] { EXPECT_FALSE(desktop.pages().closeAll()); });

    const QTemporaryDir folder;
    const std::string path = folder.filePath("one.mid").toStdString();
    EXPECT_TRUE(window.document().save(path, SequenceFormat::MidiFile,
                                       SequenceDocument::SaveOperation::SaveAs));
    EXPECT_FALSE(window.isWindowModified());
    EXPECT_EQ(window.windowTitle(), "one.mid[*]");
    draw(window, {300, 100});
    answering({"Save"}, [&] { EXPECT_TRUE(closes(window)); });
    SequenceDocument reread(desktop.application().player());
    reread.read(path);
    EXPECT_EQ(reread.sequence().notes().size(), 2);

    desktop.application().playing().usePlainReading();
    SequencePage& imported = open("wolf-fantasia.mid");
    EXPECT_THAT(answering({"Cancel"}, [&] { EXPECT_FALSE(imported.saver().save()); }),
                ElementsAre(EndsWith(
                    "The source file contains unprocessed MIDI information which cannot be "
                    "overwriten (multichannel, meta events,…). Use the 'Save As…' option "
                    "instead.")));
    EXPECT_EQ(&open("wolf-fantasia.mid"), &imported) << "a file is opened only once";
    EXPECT_TRUE(closes(imported));

    draw(open());
    draw(open());
    QTimer::singleShot(0, [&] { open("wolf-fantasia.mid"); });
    answering({"Discard", "Discard"}, [&] { EXPECT_TRUE(desktop.pages().closeAll()); });
    EXPECT_EQ(keyboard.document(), nullptr) << "a window opened meanwhile is closed too";
    EXPECT_EQ(open().windowTitle(), "Untitled 4[*]") << "files do not use up names";
}

TEST_F(SequenceSaverTest, LosesNothingWhenTheUserLogsOut)
{
    SequencePage& page = open();
    draw(page);
    const auto logOut = [&](const std::vector<QString>& answers, bool mayAsk) {
        LogoutManager manager{mayAsk};
        answering(answers, [&] { desktop.pages().answerLogout(manager); });
        return manager.told;
    };
    EXPECT_THAT(logOut({"Cancel"}, true), ElementsAre("cancel"));
    EXPECT_THAT(logOut({"Discard"}, true), ElementsAre("release"));
    EXPECT_THAT(logOut({}, false), ElementsAre()) << "nobody can be asked";
    EXPECT_THAT(desktop.pages().all(), ElementsAre(&page)) << "the session may go on after all";
    answering({"Discard"}, [&] { EXPECT_TRUE(closes(page)) << "its changes are kept"; });
}

TEST_F(SequenceSaverTest, SavesAndExportsUnderTheChosenNames)
{
    desktop.launch();
    desktop.application().waitForBank();
    SequencePage& window = open("wolf-fantasia.mid");
    const QTemporaryDir folder;
    naming(folder.filePath("tune"), [&] { EXPECT_TRUE(window.saver().saveAs()); });
    EXPECT_EQ(window.document().path(), folder.filePath("tune.mid").toStdString());
    EXPECT_TRUE(window.saver().save()) << "no longer an imported file";
    for (const std::vector<QString>& answers : {std::vector<QString>{}, {"Yes"}})
        answering(answers, [&] {
            naming(folder.filePath("No.1"), [&] { EXPECT_TRUE(window.saver().saveAs()); });
        });
    EXPECT_EQ(window.document().path(), folder.filePath("No.1.mid").toStdString());
    answering({"Cancel"}, [&] {
        naming(
            folder.filePath("tune.mid"), [&] { EXPECT_FALSE(window.saver().saveAs()); }, 1);
    });
    answering({"Save"}, [&] {
        naming(folder.filePath("tune.imy"), [&] { EXPECT_TRUE(window.saver().saveAs()); });
    });
    QFile melody(folder.filePath("tune.imy"));
    EXPECT_TRUE(melody.open(QIODevice::ReadOnly) && melody.readLine() == "BEGIN:IMELODY\r\n");

    naming(
        folder.filePath("x.wav"), [&] { action("Export Audio…").trigger(); }, 1);
    EXPECT_EQ(proposal, folder.filePath("No.1.wav")) << "the melody is only an export";
    EXPECT_TRUE(QTest::qWaitFor([&] { return window.saver().isBusyOrModified(); }));
    answering({"Cancel"}, [&] { EXPECT_FALSE(desktop.pages().closeAll()); });
    auto& progress = *window.findChild<QProgressDialog*>();
    EXPECT_THAT(progress.labelText().toStdString(), StartsWith("x.flac"));
    EXPECT_FALSE(progress.isModal()) << "one can play meanwhile";
    progress.cancel();

    window.document().edit()->select();
    window.document().edit()->erase();
    window.document().transport().setSpeed(3.0);
    draw(window);
    naming(folder.filePath("tune.ogg"), [&] { action("Export Audio…").trigger(); });
    EXPECT_TRUE(QTest::qWaitFor(
        [&] { return desktop.workspace().status().currentMessage() == "Exported tune.ogg"; },
        20'000));
    EXPECT_GT(QFileInfo(folder.filePath("tune.ogg")).size(), 1000);
    answering({"Discard"}, [&] { EXPECT_TRUE(closes(window)); });
}

TEST_F(SequenceSaverTest, SavesAFileWhoseNameIsNotUtf8)
{
    const QTemporaryDir folder;
    const auto file = std::filesystem::path(folder.path().toStdString()) / "f\xFCr.mid";
    std::filesystem::copy_file(VELMORA_EXAMPLES "/wolf-fantasia.mid", file);
    desktop.open({textOf(file)});
    draw(*last);
    const auto size = std::filesystem::file_size(file);
    EXPECT_EQ(last->saver().displayName(), QString("für.mid"));
    naming(folder.filePath("g.mid"), [&] { EXPECT_TRUE(last->saver().saveAs()); });
    draw(*last, {300, 300});
    naming(QFile::decodeName(file.c_str()),
           [&] { answering({"Yes"}, [&] { EXPECT_TRUE(last->saver().saveAs()); }); });
    draw(*last, {400, 300});
    EXPECT_TRUE(last->saver().save());
    EXPECT_EQ(last->document().path(), file);
    EXPECT_NE(std::filesystem::file_size(file), size);
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(file.parent_path()), {}), 2);
    EXPECT_EQ(pathOf(ShellActions::recentFiles().value(0)), file);
    std::filesystem::remove(file); // Qt's temporary folder cannot
}

TEST_F(SequenceSaverTest, OffersToRecoverUnsavedSequences)
{
    Commands commands;
    ShellActions shell(desktop.application(), commands);
    SequenceActions actions(commands);
    const auto run = [&](const auto& act) {
        QTabWidget tabs;
        SequencePages program(desktop.application(), shell, actions, tabs, keyboard);
        QObject::connect(&program, &SequencePages::opened,
                         [this](SequencePage& window) { last = &window; });
        act(program);
    };
    run([&](SequencePages& program) {
        program.create();
        draw(*last);
    });
    run([&](SequencePages& program) {
        answering({"Ask Later"}, [&] { program.offerAbandoned(); });
        EXPECT_TRUE(program.closeAll());
    });
    run([&](SequencePages& program) {
        answering({"Recover"}, [&] { program.offerAbandoned(); });
        EXPECT_TRUE(last->isWindowModified());
        EXPECT_EQ(last->document().sequence().notes().size(), 1);
        answering({"Discard"}, [&] { EXPECT_TRUE(program.closeAll()); });
        answering({}, [&] { program.offerAbandoned(); });
    });
}

} // namespace velmora
