#include "desktop/widgets/languages.h"

#include "desktop/widgets/NoteSpinBox.h"
#include "desktop/widgets/messages.h"
#include "desktop/widgets/noteNames.h"
#include "preferences/Preferences.h"
#include "tuning/TuningDocument.h"

#include <QDir>
#include <QLineEdit>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>
#include <QTranslator>
#include <QXmlStreamReader>
#include <gmock/gmock.h>

#include <algorithm>

namespace velmora {

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

/// What a translation has in common with its text: the placeholders, a mnemonic, and whether it
/// begins or ends with a space, a colon or an ellipsis. The number may be a word in the singular.
std::vector<std::string> signsOf(const QString& text)
{
    static const QRegularExpression sign("%L?[1-9]|&(?=[^ &])|^ | $|:$|…$|\\n");
    std::vector<std::string> signs;
    for (const QRegularExpressionMatch& match : sign.globalMatch(text))
        signs.push_back(match.captured().remove('L').toStdString());
    std::ranges::sort(signs);
    return signs;
}

/// A language that names the line before the file.
class LineFirst : public QTranslator {
public:
    QString translate(const char* context, const char* text, const char* /*disambiguation*/,
                      int /*n*/) const override
    {
        if (QString(context) != "velmora::messages")
            return {};
        return text == QString("%1, line %2: %3") ? QString("%2, %1: %3") : QString(text).toUpper();
    }
    bool isEmpty() const override { return false; }
};

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

TEST(Languages, ReachMessagesFromBelowTheDesktop)
{
    LineFirst language;
    QCoreApplication::installTranslator(&language);
    TuningDocument document;
    QTemporaryDir folder;
    QFile file(folder.filePath("100%3 line.scl"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("!\nA scale\ntwelve\n");
    file.close();
    EXPECT_FALSE(document.read(file.fileName().toStdString(), TuningFormat::Scale, Reading::Plain));
    EXPECT_EQ(translated(document.errorString()), "3, 100%3 line.scl: \"twelve\" IS THE NUMBER OF "
                                                  "NOTES; ONLY SCALES OF 12 NOTES ARE SUPPORTED");
    EXPECT_FALSE(document.read("/nowhere/none.scl", TuningFormat::Scale));
    EXPECT_THAT(translated(document.errorString()).toStdString(),
                testing::StartsWith("none.scl: CANNOT BE READ ("));
    EXPECT_EQ(translated("The output \"none.1\" has gone; playing through JACK until it is back."),
              "THE OUTPUT \"none.1\" HAS GONE; PLAYING THROUGH JACK UNTIL IT IS BACK.");
    EXPECT_EQ(translated("something new"), "something new");
    QCoreApplication::removeTranslator(&language);
}

TEST(Languages, HaveNames)
{
    EXPECT_EQ(languages(), QStringList({"de", "en", "es", "fr", "it", "ja"}));
    EXPECT_EQ(nativeName("de"), "Deutsch");
    EXPECT_EQ(nativeName("en"), "English");
    EXPECT_EQ(nativeName("fr"), "Français");
    EXPECT_EQ(nativeName("es"), "Español");
}

TEST(Languages, TranslationsKeepPlaceholdersAndMnemonics)
{
    const QFileInfoList files = QDir(VELMORA_TRANSLATIONS).entryInfoList({"*.ts"});
    EXPECT_EQ(files.size(), languages().size());
    for (const QFileInfo& info : files) {
        QFile file(info.filePath());
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        QXmlStreamReader xml(&file);
        QString source, text;
        while (!xml.atEnd()) {
            xml.readNext();
            if (xml.isStartElement())
                text.clear();
            else if (xml.isCharacters())
                text += xml.text();
            if (xml.isEndElement() && xml.name() == u"source")
                source = text;
            const bool isTranslation = xml.isEndElement() && (xml.name() == u"translation" ||
                                                              xml.name() == u"numerusform");
            if (isTranslation && !text.trimmed().isEmpty()) {
                EXPECT_EQ(signsOf(text), signsOf(source))
                    << info.fileName().toStdString() << ": " << text.toStdString();
            }
            if (xml.isEndElement())
                text.clear();
        }
        EXPECT_FALSE(xml.hasError()) << info.fileName().toStdString();
    }
}

} // namespace velmora
