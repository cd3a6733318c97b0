#include "desktop/widgets/languages.h"

#include "desktop/widgets/NoteSpinBox.h"
#include "desktop/widgets/noteNames.h"
#include "preferences/Preferences.h"

#include <QAction>
#include <QLineEdit>
#include <QTest>
#include <QTranslator>
#include <QXmlStreamReader>
#include <gmock/gmock.h>

namespace velmora {

using testing::Contains;

namespace {

/// Names notes in a way and in a locale until it goes out of scope.
class Naming {
public:
    Naming(NoteNaming naming, const char* locale)
    {
        setPrefInt("NoteNames", static_cast<int>(naming));
        QLocale::setDefault(QLocale(locale));
    }
    ~Naming()
    {
        resetPref("NoteNames");
        QLocale::setDefault(usual_);
    }

private:
    QLocale usual_;
};

QString tones()
{
    QStringList names;
    for (const char* spelling : {"C", "C#", "Eb", "E#", "F##", "Abb", "Bb", "B", "B#", "Bbb"})
        names += toneText(spelling);
    return names.join(' ');
}

} // namespace

TEST(NoteNames, FollowThePreferenceOrElseTheLanguage)
{
    const char* international = "C C♯ E♭ E♯ F♯♯ A♭♭ B♭ B B♯ B♭♭";
    const char* german = "C Cis Es Eis Fisis Ases B H His Heses";
    const char* solfege = "Do Do♯ Mi♭ Mi♯ Fa♯♯ La♭♭ Si♭ Si Si♯ Si♭♭";
    const struct {
        NoteNaming naming;
        const char* locale;
        const char* tones;
    } cases[] = {{NoteNaming::ByLanguage, "en_GB", international},
                 {NoteNaming::ByLanguage, "de_AT", german},
                 {NoteNaming::ByLanguage, "it_IT", solfege},
                 {NoteNaming::ByLanguage, "ja_JP", international},
                 {NoteNaming::International, "de_DE", international},
                 {NoteNaming::German, "en_US", german},
                 {NoteNaming::Solfege, "de_DE", solfege}};
    for (const auto& [naming, locale, expected] : cases) {
        const Naming current(naming, locale);
        EXPECT_EQ(tones(), expected) << locale;
    }
}

TEST(NoteNames, AreAcceptedAsTheyAreShown)
{
    const Naming current(NoteNaming::German, "de_DE");
    NoteSpinBox box;
    const struct {
        const char* typed;
        int key;
    } cases[] = {{"b3", 58}, {"h3", 59}, {"Cis4", 61}, {"C#4", 61}, {"bb3", 58}, {"72", 72}};
    for (const auto& [typed, key] : cases) {
        box.setValue(0);
        box.findChild<QLineEdit*>()->selectAll();
        QTest::keyClicks(&box, typed);
        EXPECT_EQ(box.value(), key) << typed;
    }
    EXPECT_EQ(box.text(), "72");
    box.clearFocus();
}

TEST(Languages, HaveNames)
{
    EXPECT_EQ(languages(), QStringList({"de", "en", "es", "fr", "it", "ja"}));
    EXPECT_EQ(nativeName("de"), "Deutsch");
    EXPECT_EQ(nativeName("en"), "English");
    EXPECT_EQ(nativeName("fr"), "Français");
}

} // namespace velmora
