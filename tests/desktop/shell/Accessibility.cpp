#include "desktop/keyboard/KeyboardView.h"
#include "desktop/practice/PracticeWindow.h"
#include "desktop/roll/SequenceView.h"
#include "desktop/shell/Desktop.h"
#include "desktop/shell/SequencePage.h"
#include "desktop/widgets/Commands.h"
#include "desktop/widgets/languages.h"
#include "preferences/Preferences.h"
#include "preferences/settings.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QAction>
#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QGroupBox>
#include <QLabel>
#include <QMenuBar>
#include <QStackedWidget>
#include <QTabBar>
#include <QTemporaryDir>
#include <QTimer>
#include <QTranslator>
#include <QtTest>
#include <gmock/gmock.h>

#include <functional>
#include <map>
#include <set>
#include <string>
#include <vector>

namespace velmora {

using testing::IsEmpty;

namespace {

bool isControl(const QAccessibleInterface& item)
{
    switch (item.role()) {
    case QAccessible::ScrollBar: // which screen readers do not need
    case QAccessible::Cell:      // which may be empty
    case QAccessible::TreeItem:
    case QAccessible::Window:
        return false;
    case QAccessible::PushButton:
    case QAccessible::CheckBox:
    case QAccessible::RadioButton:
    case QAccessible::ButtonMenu:
    case QAccessible::ButtonDropDown:
    case QAccessible::ComboBox:
    case QAccessible::EditableText:
    case QAccessible::Slider:
    case QAccessible::SpinBox:
    case QAccessible::MenuItem:
    case QAccessible::PageTab:
    case QAccessible::List:
    case QAccessible::Table:
    case QAccessible::Tree:
        return true;
    default:
        return item.state().focusable;
    }
}

/// Adds the places of the controls below an item that a screen reader cannot name.
void findNameless(QAccessibleInterface* item, const QString& place, std::vector<std::string>& found)
{
    if (item == nullptr)
        return;
    const QObject* object = item->object();
    const QString name = item->text(QAccessible::Name);
    // The parts of these controls are named by the control.
    const bool isPart = object != nullptr && object->parent() != nullptr &&
                        (object->parent()->inherits("QAbstractSpinBox") ||
                         object->parent()->inherits("QComboBox") ||
                         object->parent()->inherits("QComboBoxPrivateContainer"));
    const QString here = place + '/' +
                         (object != nullptr ? object->metaObject()->className() : "item") + ' ' +
                         (object != nullptr ? object->objectName() : QString()) + '"' + name + '"';
    const bool isSeparator = item->role() == QAccessible::Separator;
    const auto* widget = qobject_cast<const QWidget*>(object);
    // A tab bar is named by its current tab, and has no name while the window keeps it for later.
    const auto* tabs = qobject_cast<const QTabBar*>(object);
    const bool isEmpty = item->childCount() == 0 || (tabs != nullptr && tabs->count() == 0);
    const bool isUnused = widget != nullptr && widget->isHidden() && isEmpty;
    if (isControl(*item) && name.trimmed().isEmpty() && !isPart && !isSeparator && !isUnused)
        found.push_back(here.toStdString());
    for (int i = 0; i < std::min(item->childCount(), 100); ++i)
        findNameless(item->child(i), here, found);
}

using Mnemonics = std::map<QString, QStringList>;

void add(const QString& text, Mnemonics& mnemonics)
{
    if (const QKeySequence key = QKeySequence::mnemonic(text); !key.isEmpty())
        mnemonics[key.toString()] += text;
}

std::vector<std::string> clashes(const Mnemonics& mnemonics)
{
    std::vector<std::string> found;
    for (const auto& [key, texts] : mnemonics)
        if (texts.size() > 1)
            found.push_back((key + ": " + texts.join(" and ")).toStdString());
    return found;
}

/// Returns the mnemonics that two controls of a window have while both are in sight.
std::vector<std::string> clashesIn(QWidget& window)
{
    Mnemonics mnemonics;
    for (const QWidget* widget : window.findChildren<QWidget*>()) {
        if (!widget->isVisibleTo(&window) || widget->window() != &window)
            continue;
        if (const auto* bar = qobject_cast<const QMenuBar*>(widget))
            for (const QAction* action : bar->actions())
                add(action->text(), mnemonics);
        if (const auto* label = qobject_cast<const QLabel*>(widget))
            if (label->buddy() != nullptr)
                add(label->text(), mnemonics);
        if (const auto* button = qobject_cast<const QAbstractButton*>(widget))
            add(button->text(), mnemonics);
        if (const auto* box = qobject_cast<const QGroupBox*>(widget))
            add(box->title(), mnemonics);
    }
    for (const QAction* action : window.findChildren<QAction*>())
        if (const QString key = action->shortcut().toString(); mnemonics.contains(key))
            mnemonics[key] += action->text();
    return clashes(mnemonics);
}

std::vector<std::string> clashesIn(const QMenu& menu)
{
    Mnemonics mnemonics;
    for (const QAction* action : menu.actions())
        add(action->text(), mnemonics);
    return clashes(mnemonics);
}

void expectNames(QWidget& window)
{
    std::vector<std::string> nameless;
    findNameless(QAccessible::queryAccessibleInterface(&window), {}, nameless);
    EXPECT_THAT(nameless, IsEmpty());
    EXPECT_THAT(clashesIn(window), IsEmpty()) << window.windowTitle().toStdString();
}

/// Shows the desktop in a language until it goes out of scope.
class InLanguage {
public:
    explicit InLanguage(const QString& code) { use(code); }
    ~InLanguage() { use({}); }

private:
    static void use(const QString& code)
    {
        qDeleteAll(qApp->findChildren<QTranslator*>());
        setPrefString("Language", code.toStdString());
        installTranslators();
    }
};

/// Triggers a command, visits each window that it opens, and closes it.
void visitWindowsOf(QAction& command, const std::function<void(QWidget&)>& visit)
{
    const QWidgetList before = QApplication::topLevelWidgets();
    QTimer closing; // because a dialog keeps the command waiting
    QObject::connect(&closing, &QTimer::timeout, [&] {
        QWidget* dialog = QApplication::activeModalWidget();
        if (dialog == nullptr)
            return;
        visit(*dialog);
        dialog->close();
    });
    closing.start(20);
    command.trigger();
    closing.stop();
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (!window->isVisible() || before.contains(window))
            continue;
        visit(*window);
        window->close();
    }
}

/// Presses a key where the focus is.
void key(int key, Qt::KeyboardModifiers modifiers = {})
{
    QTest::keyClick(QApplication::focusWidget(), static_cast<Qt::Key>(key), modifiers);
}

} // namespace

TEST(Accessibility, EveryControlHasANameAndAMnemonicOfItsOwn)
{
    for (const QString& language : languages()) {
        SCOPED_TRACE(language.toStdString());
        const InLanguage translated(language);
        Desktop desktop;
        desktop.launch();
        desktop.open({VELMORA_EXAMPLES "/wolf-fantasia.mid"});
        std::vector<std::string> nameless;
        for (QWidget* window : QApplication::topLevelWidgets()) {
            findNameless(QAccessible::queryAccessibleInterface(window), {}, nameless);
            EXPECT_THAT(clashesIn(*window), IsEmpty()) << window->windowTitle().toStdString();
            for (auto* pages : window->findChildren<QStackedWidget*>()) {
                for (int page = 0; page < pages->count(); ++page) {
                    pages->setCurrentIndex(page);
                    EXPECT_THAT(clashesIn(*window), IsEmpty())
                        << window->windowTitle().toStdString();
                }
            }
            for (const auto* menu : window->findChildren<QMenu*>())
                EXPECT_THAT(clashesIn(*menu), IsEmpty()) << menu->title().toStdString();
        }
        EXPECT_THAT(nameless, IsEmpty());
    }
}

TEST(Accessibility, EveryControlOfTheDialogsOfCommandsHasAName)
{
    for (const QString& language : languages()) {
        SCOPED_TRACE(language.toStdString());
        const InLanguage translated(language);
        Desktop desktop;
        desktop.launch();
        desktop.open({VELMORA_EXAMPLES "/wolf-fantasia.mid"});
        QTest::keyClick(desktop.workspace().findChild<SequenceView*>(), Qt::Key_A,
                        Qt::ControlModifier);
        std::set<std::string> visited;
        for (const Commands::Command& command : desktop.commands().all()) {
            if (!command.action->text().endsWith(QStringLiteral("…")) ||
                !command.action->isEnabled())
                continue;
            visitWindowsOf(*command.action, [&](QWidget& window) {
                if (qobject_cast<QFileDialog*>(&window) != nullptr) // which is Qt's
                    return;
                visited.insert(command.action->text().toStdString());
                expectNames(window);
            });
        }
        PracticeWindow results(nullptr);
        results.show("wolf-fantasia", {PracticeEntry{}});
        expectNames(results);
        EXPECT_GE(visited.size(), 10) << testing::PrintToString(visited);
    }
}

TEST(Accessibility, PresentsKeysAndNotesAsLists)
{
    Desktop desktop;
    desktop.workspace().activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&desktop.workspace()));
    desktop.open({VELMORA_EXAMPLES "/wolf-fantasia.mid"});
    QAccessibleInterface* keys =
        QAccessible::queryAccessibleInterface(&desktop.workspace().keyboard());
    ASSERT_EQ(keys->childCount(), 88);
    QAccessibleInterface* middleC = keys->child(39);
    EXPECT_EQ(middleC->text(QAccessible::Name), "C4");
    EXPECT_EQ(keys->childAt(middleC->rect().center().x(), middleC->rect().bottom() - 2), middleC);
    EXPECT_FALSE(middleC->state().pressed);
    desktop.application().player().keyOn(60, 1.0F);
    EXPECT_TRUE(middleC->state().pressed);
    desktop.application().player().keyOff(60);

    auto* roll = desktop.workspace().findChild<SequenceView*>();
    QAccessibleInterface* list = QAccessible::queryAccessibleInterface(roll);
    const auto& notes = roll->document()->sequence().notes();
    ASSERT_EQ(list->childCount(), notes.size());
    QAccessibleInterface* first = list->child(0);
    EXPECT_THAT(first->text(QAccessible::Name).toStdString(),
                testing::MatchesRegex("G3, bar 1, beat 1, length in beats 3[.]98, channel 3"));
    EXPECT_FALSE(first->state().selected);
    QTest::keyClick(roll, Qt::Key_A, Qt::ControlModifier);
    EXPECT_TRUE(first->state().selected);
    QAccessibleInterface* last = list->child(list->childCount() - 1);
    QTest::keyClick(roll, Qt::Key_Delete);
    EXPECT_FALSE(last->isValid()) << "the note is gone";
    QTest::keyClick(roll, Qt::Key_Z, Qt::ControlModifier);
}

TEST(Accessibility, ATakeIsRecordedCorrectedAndExportedWithKeysAlone)
{
    const QTemporaryDir folder;
    setPreference("exportFolder", folder.path());
    Desktop desktop;
    desktop.launch({"none", {}, 0.0, 0});
    desktop.workspace().activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&desktop.workspace()));
    key(Qt::Key_Return);
    SequencePage* page = desktop.pages().current();
    ASSERT_NE(page, nullptr);
    SequenceDocument& document = page->document();
    const auto& notes = document.sequence().notes();
    QTest::keyPress(QApplication::focusWidget(), Qt::Key_A);
    EXPECT_TRUE(QTest::qWaitFor([&] { return notes.size() == 1 && notes[0].length > 0; }));
    QTest::keyRelease(QApplication::focusWidget(), Qt::Key_A);
    key(Qt::Key_Return);
    EXPECT_EQ(document.transport().mode(), Transport::Mode::Stopped);

    key(Qt::Key_Down, Qt::ControlModifier);
    key(Qt::Key_Right, Qt::ControlModifier);
    key(Qt::Key_Right, Qt::AltModifier);
    key(Qt::Key_Right, Qt::AltModifier);
    key(Qt::Key_Z, Qt::ControlModifier);
    ASSERT_EQ(notes.size(), 1);
    EXPECT_EQ(notes[0].key, 61);

    QTimer accepting; // the proposed name
    QObject::connect(&accepting, &QTimer::timeout, [] {
        if (qobject_cast<QFileDialog*>(QApplication::activeModalWidget()) != nullptr &&
            QApplication::focusWidget() != nullptr)
            key(Qt::Key_Return);
    });
    accepting.start(50);
    key(Qt::Key_E, Qt::ControlModifier);
    accepting.stop();
    const QDir exported(folder.path());
    EXPECT_TRUE(QTest::qWaitFor(
        [&] { return !exported.isEmpty() && QApplication::activeModalWidget() == nullptr; },
        30000));
    // Without a window manager, nothing else gives the focus back.
    desktop.workspace().activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&desktop.workspace()));
    key(Qt::Key_Z, Qt::ControlModifier);
    key(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_FALSE(document.isModified()) << "nothing is left to recover";
}

} // namespace velmora
