#include "desktop/shell/PreferencesWindow.h"

#include "app/AppDelegate.h"
#include "desktop/shell/ColorsPane.h"
#include "desktop/shell/LanguageFields.h"
#include "desktop/shell/MidiPane.h"
#include "desktop/shell/PlayingPane.h"
#include "desktop/shell/ShortcutsPane.h"
#include "desktop/shell/SoundPane.h"
#include "desktop/tuning/GlideBar.h"
#include "desktop/widgets/Commands.h"
#include "desktop/widgets/HelpButton.h"
#include "desktop/widgets/NoteSpinBox.h"
#include "desktop/widgets/closeByKeys.h"
#include "desktop/widgets/icons.h"
#include "desktop/widgets/nameParts.h"
#include "desktop/widgets/scrolling.h"
#include "desktop/widgets/windowPlace.h"
#include "preferences/Preferences.h"

#include <QActionGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QEvent>
#include <QFileDialog>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QSignalBlocker>
#include <QStackedWidget>
#include <QToolBar>

namespace velmora {

namespace {

constexpr int kNumberWidth = 120;
constexpr int kPathWidth = 120;

/// Removes the mnemonic and the colon from a label, for use as an accessible name.
QString plainText(QString label)
{
    return label.remove('&').remove(':');
}

QSpinBox* makePixelBox()
{
    auto* box = new QSpinBox;
    box->setSuffix(PreferencesWindow::tr(" px"));
    box->setCorrectionMode(QAbstractSpinBox::CorrectToNearestValue);
    return box;
}

} // namespace

PreferencesWindow::PreferencesWindow(AppDelegate& application, Commands& commands)
    : paneActions_(new QActionGroup(this)), panes_(new QStackedWidget(this)),
      help_(new HelpButton("preferences", *this))
{
    setWindowTitle(tr("Preferences"));
    setContextMenuPolicy(Qt::NoContextMenu); // the default menu can hide the toolbar
    setCentralWidget(panes_);
    auto* toolBar = addToolBar(tr("Panes"));
    toolBar->setMovable(false);
    nameParts(*toolBar);
    toolBar->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
    addPane(tr("&General"), "preferences-general", "preferences", makeGeneralPane());
    addPane(tr("C&olors"), "preferences-colors", "colours-and-schemes", makeColorsPane());
    addPane(tr("&MIDI"), "midi", "midi-and-sound", makeMidiPane(application));
    addPane(tr("So&und"), "preferences-sound", "midi-and-sound", new SoundPane(application));
    addPane(tr("Short&cuts"), "keyboard", "all-shortcuts", new ShortcutsPane(commands));
    toolBar->addActions(paneActions_->actions());
    for (QAction* action : paneActions_->actions()) {
        Commands::setTip(*action, action->text());
        toolBar->widgetForAction(action)->setFocusPolicy(Qt::TabFocus);
    }
    auto* space = new QWidget;
    space->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    toolBar->addWidget(space);
    toolBar->addWidget(help_);
    closeByKeys(*this);
    rememberPlace(*this, "preferences");
}

void PreferencesWindow::presentPane(Pane pane)
{
    paneActions_->actions().at(static_cast<int>(pane))->trigger();
    present(*this);
}

void PreferencesWindow::addPane(const QString& name, const char* iconName, const char* guideSection,
                                QWidget* pane)
{
    for (auto* field : pane->findChildren<QWidget*>())
        if (qobject_cast<QComboBox*>(field) != nullptr ||
            qobject_cast<QAbstractSpinBox*>(field) != nullptr ||
            qobject_cast<QAbstractSlider*>(field) != nullptr)
            leaveWheelToScrolling(*field);
    QScrollArea* area = newScrollArea(pane); // for small screens and large fonts
    panes_->addWidget(area);
    auto* action = paneActions_->addAction(icon(iconName), plainText(name));
    action->setCheckable(true);
    action->setChecked(panes_->currentWidget() == area);
    action->setShortcut(QKeySequence::mnemonic(name));
    connect(action, &QAction::triggered, panes_, [this, area, guideSection] {
        panes_->setCurrentWidget(area);
        help_->setSection(guideSection);
    });
}

QWidget* PreferencesWindow::makeGeneralPane()
{
    auto* pane = new QWidget;
    auto* form = new QFormLayout(pane);
    addNumber(*form, tr("Key &width:"), "KeyWidth", makePixelBox(),
              tr("The width of a semitone on the keyboard and in the piano roll"));
    addNumber(*form, tr("&Step height:"), "KeyHeight", makePixelBox(),
              tr("The height of a step, the distance between grid lines, in the piano roll"));
    addNumber(*form, tr("&Lowest key:"), "KeyRangeLo", new NoteSpinBox,
              tr("The first key of the keyboard: a note name, such as A0, or a MIDI key number"));
    addNumber(*form, tr("&Highest key:"), "KeyRangeHi", new NoteSpinBox,
              tr("The last key of the keyboard: a note name, such as C8, or a MIDI key number"));

    auto* names = new QCheckBox(tr("Show note &names on the C keys"));
    names->setObjectName("KeyNames");
    connect(names, &QCheckBox::toggled, this, [this](bool isOn) {
        setPrefBool("KeyNames", isOn);
        emit changed();
    });
    readers_.emplace_back([names] {
        const QSignalBlocker blocker(names);
        names->setChecked(getPrefBool("KeyNames"));
    });
    form->addRow(QString(), names);
    auto* language = new LanguageFields(*form);
    connect(language, &LanguageFields::noteNamesChanged, this, [this] {
        for (auto* box : findChildren<NoteSpinBox*>())
            box->showName();
        emit changed();
    });
    readers_.emplace_back([language] { language->read(); });
    form->addRow(tr("General MIDI bank:"), makeBankRow());
    form->addRow(tr("A&t the start:"), makeStartBox());
    return pane;
}

QComboBox* PreferencesWindow::makeStartBox()
{
    auto* start = new QComboBox;
    start->addItems({tr("Start empty"), tr("Start as last time")});
    start->setObjectName("StartAsLastTime");
    start->setToolTip(
        tr("Whether the instruments, the tuning and the pieces that are open when you "
           "quit are opened again"));
    connect(start, &QComboBox::activated, this,
            [](int index) { setPrefBool("StartAsLastTime", index == 1); });
    readers_.emplace_back(
        [start] { start->setCurrentIndex(getPrefBool("StartAsLastTime") ? 1 : 0); });
    return start;
}

QWidget* PreferencesWindow::makeMidiPane(AppDelegate& application)
{
    auto* devices = new MidiPane(application);
    readers_.emplace_back([devices] { devices->read(); });
    auto* playing = new PlayingPane;
    readers_.emplace_back([playing] { playing->read(); });
    connect(playing, &PlayingPane::changed, this, &PreferencesWindow::changed);
    connect(&application.playing(), &PlayingOptions::changed, playing, &PlayingPane::read);

    auto* glide = new GlideBar(application.playing());
    glide->setContentsMargins(playing->layout()->contentsMargins());

    auto* pane = new QWidget;
    auto* layout = new QVBoxLayout(pane);
    layout->setContentsMargins({});
    layout->addWidget(devices, 1);
    layout->addWidget(playing);
    layout->addWidget(glide);
    return pane;
}

void PreferencesWindow::addNumber(QFormLayout& form, const QString& label, const char* key,
                                  QSpinBox* box, const QString& help)
{
    box->setObjectName(key);
    box->setAccessibleName(plainText(label));
    box->setToolTip(help);
    box->setMinimumWidth(kNumberWidth);
    box->setKeyboardTracking(false); // store only complete numbers
    box->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    form.addRow(label, box);
    connect(box, &QSpinBox::valueChanged, this, [this, key](int value) {
        setPrefInt(key, value);
        read(); // the ends of the keyboard limit each other
        emit changed();
    });
    readers_.emplace_back([box, key] {
        const QSignalBlocker blocker(box);
        const PrefRange range = prefRange(key);
        box->setRange(range.least, range.greatest);
        if (box->value() != getPrefInt(key)) // setting it would reformat a text being typed
            box->setValue(getPrefInt(key));
    });
}

QLayout* PreferencesWindow::makeBankRow()
{
    auto* path = new QLineEdit;
    path->setObjectName("GMBank");
    path->setReadOnly(true);
    path->setPlaceholderText(tr("System default"));
    path->setAccessibleName(tr("General MIDI bank"));
    path->setMinimumWidth(kPathWidth);
    auto* choose = new QPushButton(tr("&Browse…"));
    choose->setObjectName("ChooseBank");
    choose->setToolTip(tr("Choose a SoundFont for the General MIDI player"));
    connect(choose, &QPushButton::clicked, this, &PreferencesWindow::chooseBank);
    auto* standard = new QPushButton(tr("Use &Default"));
    standard->setObjectName("DefaultBank");
    standard->setToolTip(tr("Use the system's General MIDI bank"));
    connect(standard, &QPushButton::clicked, this, [this] { setBank({}); });
    readers_.emplace_back([path, standard] {
        path->setText(QString::fromStdString(getPrefString("GMBank")));
        path->setToolTip(path->text());
        standard->setEnabled(!path->text().isEmpty());
    });

    auto* row = new QHBoxLayout;
    row->addWidget(path, 1);
    row->addWidget(choose);
    row->addWidget(standard);
    return row;
}

void PreferencesWindow::chooseBank()
{
    auto* dialog = new QFileDialog(this, tr("Choose a General MIDI Bank"));
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setFileMode(QFileDialog::ExistingFile);
    dialog->setNameFilters({tr("SoundFont banks (*.sf2 *.sf3)"), tr("All files (*)")});
    const QString bank = QString::fromStdString(getPrefString("GMBank"));
    if (bank.isEmpty())
        dialog->setDirectory("/usr/share/sounds/sf2");
    else
        dialog->selectFile(bank);
    connect(dialog, &QFileDialog::fileSelected, this, &PreferencesWindow::setBank);
    dialog->open();
}

void PreferencesWindow::setBank(const QString& path)
{
    if (path.isEmpty())
        resetPref("GMBank");
    else
        setPrefString("GMBank", path.toStdString());
    read();
    emit bankChanged();
}

QWidget* PreferencesWindow::makeColorsPane()
{
    auto* pane = new ColorsPane;
    connect(pane, &ColorsPane::changed, this, &PreferencesWindow::changed);
    readers_.emplace_back([pane] { pane->read(); });
    return pane;
}

void PreferencesWindow::read() const
{
    for (const auto& reader : readers_)
        reader();
}

bool PreferencesWindow::event(QEvent* event)
{
    // Some preferences can also be changed elsewhere.
    if (event->type() == QEvent::Show || event->type() == QEvent::WindowActivate)
        read();
    return QMainWindow::event(event);
}

} // namespace velmora
