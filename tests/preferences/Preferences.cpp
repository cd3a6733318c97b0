#include "preferences/Preferences.h"

#include "preferences/Color.h"
#include "support/Log.h"

#include <QFile>
#include <QSettings>
#include <QTemporaryDir>
#include <gmock/gmock.h>

namespace velmora {

using testing::AllOf;
using testing::FieldsAre;
using testing::HasSubstr;
using testing::Not;

/// A single test, because a process reads its settings file only once.
TEST(Preferences, ToleratesADamagedFile)
{
    const QTemporaryDir home;
    qputenv("XDG_CONFIG_HOME", home.path().toUtf8());
    QDir(home.path()).mkdir("velmora");
    QFile file(home.path() + "/velmora/velmora.conf");
    ASSERT_TRUE(file.open(QFile::WriteOnly));
    file.write("[General]\nKeyWidth=wide\nKeyHeight=0\nno value\n\x01\x02\nKeyRangeLo=300\n"
               "KeyRangeHi=5\nKeyNames=perhaps\nNoteColor=1, 0, 0\nKeyColor=0, 2, 0, 1\n"
               "KeyColorWrong=0.25, 0.5, 0.75, 1\nGMBank=/bank.sf2\n");
    file.close();
    const auto readTwice = [] {
        for (int reading = 0; reading < 2; ++reading) {
            EXPECT_EQ(getPrefInt("KeyWidth"), 14);
            EXPECT_EQ(getPrefInt("KeyHeight"), 1);
            EXPECT_EQ(getPrefInt("KeyRangeLo"), 126);
            EXPECT_EQ(getPrefInt("KeyRangeHi"), 127);
            EXPECT_TRUE(getPrefBool("KeyNames"));
            EXPECT_EQ(getPrefString("GMBank"), "/bank.sf2");
            EXPECT_EQ(getPrefInt("NoSuchKey"), 0);
            EXPECT_THAT(Color("KeyColorWrong"), FieldsAre(0.25F, 0.5F, 0.75F, 1.0F));
            EXPECT_THAT(Color("KeyColorCorrect"), FieldsAre(1.0F, 0.7F, 0.0F, 1.0F)) << "a default";
            for (const char* unreadable : {"NoteColor", "KeyColor", "NoSuchKey"})
                EXPECT_THAT(Color(unreadable), FieldsAre(0, 0, 0, 0)) << unreadable;
        }
    };
    EXPECT_EQ(logOf(readTwice),
              "preferences: " + file.fileName().toStdString() +
                  " is damaged; using defaults for missing values\n"
                  "preferences: the preference KeyWidth is not a whole number; using its default\n"
                  "preferences: the preference KeyNames is not true or false; using its default\n");

    setPrefInt("KeyWidth", 20);
    setPrefColor("KeyColorWrong", Color(QColor(0, 255, 0)));
    resetPref("KeyHeight");
    EXPECT_EQ(getPrefInt("KeyHeight"), 8);
    QSettings("velmora", "velmora").sync();
    ASSERT_TRUE(file.open(QFile::ReadOnly));
    EXPECT_THAT(file.readAll().toStdString(),
                AllOf(HasSubstr("\nKeyWidth=20\n"), HasSubstr("\nKeyColorWrong=0, 1, 0, 1\n"),
                      Not(HasSubstr("KeyHeight")), Not(HasSubstr("KeyColorCorrect"))));
}

} // namespace velmora
