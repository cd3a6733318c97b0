#include "desktop/shell/StartPage.h"

#include "desktop/shell/ShellActions.h"
#include "desktop/widgets/icons.h"
#include "platform/pathNames.h"
#include "preferences/settings.h"

#include <QCoreApplication>
#include <QDir>
#include <QFrame>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QStandardPaths>
#include <QVBoxLayout>

#include <algorithm>

namespace velmora {

namespace {

constexpr const char* kWelcomedKey = "welcomed";
constexpr qsizetype kShownFiles = 6;
constexpr int kMargin = 20;

/// A card is at least as wide as this many letters.
constexpr int kCardLetters = 26;

/// Below a console, or in large type, there is room for fewer lines of text than this.
constexpr int kLowLines = 18;

constexpr const char* kExplanation = "explanation"; ///< What a low page leaves out.

QLabel* makeText(const QString& text)
{
    auto* label = new QLabel(text);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    return label;
}

QLabel* makeHeading(const QString& text, double size)
{
    QLabel* label = makeText(text);
    QFont font = label->font();
    font.setBold(true);
    font.setPointSizeF(font.pointSizeF() * size);
    label->setFont(font);
    return label;
}

QPushButton* makeButton(const QString& text, const QString& accessibleName)
{
    auto* button = new QPushButton(text);
    button->setAccessibleName(accessibleName);
    button->setFocusPolicy(Qt::TabFocus);
    return button;
}

QWidget* makeCard(const QString& title, const QString& text, const QList<QPushButton*>& buttons)
{
    auto* card = new QFrame;
    card->setFrameShape(QFrame::StyledPanel);
    card->setAutoFillBackground(true);
    card->setBackgroundRole(QPalette::Base);
    // All cards are equally wide, whatever their texts.
    card->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    card->setAccessibleName(title);
    card->setAccessibleDescription(text);
    auto* layout = new QVBoxLayout(card);
    layout->addWidget(makeHeading(title, 1.15));
    QLabel* explanation = makeText(text);
    explanation->setObjectName(kExplanation);
    layout->addWidget(explanation, 1, Qt::AlignTop);
    auto* row = new QHBoxLayout;
    for (QPushButton* button : buttons)
        row->addWidget(button);
    row->addStretch();
    layout->addLayout(row);
    return card;
}

/// The folder with the examples: beside the program, as installed and as built, or wherever the
/// system keeps such files. Empty if there is none.
QString exampleFolder()
{
    const QDir beside(QCoreApplication::applicationDirPath() + "/../share/velmora/examples");
    if (beside.exists())
        return beside.canonicalPath();
    return QStandardPaths::locate(QStandardPaths::GenericDataLocation, "velmora/examples",
                                  QStandardPaths::LocateDirectory);
}

} // namespace

StartPage::StartPage(QWidget* parent) : QScrollArea(parent)
{
    setObjectName("startPage");
    setAccessibleName(tr("First steps"));
    setFrameShape(QFrame::NoFrame);
    setWidgetResizable(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    auto* page = new QWidget;
    setWidget(page);
    auto* layout = new QVBoxLayout(page);
    layout->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    QPushButton* guide = makeButton(tr("User Guide"), tr("Open the user guide"));
    guide->setIcon(icon("help"));
    connect(guide, &QPushButton::clicked, this, &StartPage::guideRequested);
    auto* welcome = new QWidget;
    welcome->setObjectName(kExplanation);
    auto* top = new QHBoxLayout(welcome);
    top->setContentsMargins(0, 0, 0, 0);
    top->addWidget(makeHeading(tr("What would you like to do?"), 1.4), 1);
    top->addWidget(guide, 0, Qt::AlignTop);
    layout->addWidget(welcome);
    if (!preference(kWelcomedKey).toBool()) {
        QLabel* greeting = makeText(tr("Welcome to Velmora! Each card does something at once, and "
                                       "nothing can break."));
        greeting->setObjectName(kExplanation);
        layout->addWidget(greeting);
        setPreference(kWelcomedKey, true);
    }

    cards_ = {makeHearCard(), makeTuneCard(), makePlayCard(), makeRecordCard()};
    cardGrid_ = new QGridLayout;
    layout->addLayout(cardGrid_);

    layout->addSpacing(kMargin / 2);
    auto* files = new QHBoxLayout;
    files->setSpacing(kMargin);
    layout->addLayout(files);
    auto* examples = new QWidget;
    auto* exampleList = new QVBoxLayout(examples);
    addExamples(*exampleList);
    examples->setVisible(!exampleList->isEmpty());
    recent_ = new QWidget;
    recentList_ = new QVBoxLayout(recent_);
    for (QWidget* list : {examples, recent_}) {
        list->layout()->setContentsMargins(0, 0, 0, 0);
        files->addWidget(list, 1, Qt::AlignTop);
    }

    layout->addStretch();
    arrangeCards();
    showRecentFiles();
}

QWidget* StartPage::makeHearCard()
{
    const auto makeChordButton = [this](const QString& text, const QString& accessibleName,
                                        const char* tuning) {
        QPushButton* button = makeButton(text, accessibleName);
        connect(button, &QPushButton::clicked, this,
                [this, tuning] { emit chordRequested(tuning); });
        return button;
    };
    return makeCard(
        tr("Hear it"),
        tr("C major, whose third beats in equal temperament and is pure in meantone. The tuning "
           "that you hear stays selected."),
        {makeChordButton(tr("Equal"), tr("Hear the chord in equal temperament"), "Equal"),
         makeChordButton(tr("Meantone"), tr("Hear the chord in quarter-comma meantone"),
                         "Quartercomma Meantone")});
}

QWidget* StartPage::makeTuneCard()
{
    QPushButton* button = makeButton(tr("Choose a Tuning"), tr("Choose a tuning"));
    connect(button, &QPushButton::clicked, this, &StartPage::tuningsRequested);
    return makeCard(tr("Tune it"),
                    tr("Choose a historical tuning, or one that adapts to what you play."),
                    {button});
}

QWidget* StartPage::makePlayCard()
{
    QPushButton* button = makeButton(tr("Open an Instrument…"), tr("Open an instrument"));
    connect(button, &QPushButton::clicked, this, &StartPage::instrumentRequested);
    return makeCard(tr("Play it"),
                    tr("Use a MIDI keyboard, the keys below, or the letters of the computer "
                       "keyboard, from A on."),
                    {button});
}

QWidget* StartPage::makeRecordCard()
{
    QPushButton* button = makeButton(tr("Record"), tr("Record a new sequence"));
    button->setIcon(icon("record"));
    connect(button, &QPushButton::clicked, this, &StartPage::recordingRequested);
    return makeCard(tr("Record it"),
                    tr("Play, correct the notes in the piano roll, and export the sound."),
                    {button});
}

void StartPage::addFile(QVBoxLayout& list, const QString& path, const QString& text)
{
    QPushButton* button = makeButton(QString(text).replace("&", "&&"), tr("Open %1").arg(text));
    button->setFlat(true);
    QFont font = button->font();
    font.setUnderline(true);
    button->setFont(font);
    button->setStyleSheet("text-align: left; padding: 2px");
    button->setToolTip(QDir::toNativeSeparators(path));
    connect(button, &QPushButton::clicked, this, [this, path] { emit fileChosen(path); });
    list.addWidget(button, 0, Qt::AlignLeft);
}

void StartPage::addExamples(QVBoxLayout& list)
{
    const QString folder = exampleFolder();
    if (folder.isEmpty())
        return;
    list.addWidget(makeHeading(tr("Examples"), 1.0));
    for (const QFileInfo& file :
         QDir(folder).entryInfoList({"*.mid", "*.scl"}, QDir::Files, QDir::Type)) {
        QString name = file.completeBaseName().replace('-', ' ');
        name[0] = name[0].toUpper();
        const bool isTuning = file.suffix() == "scl";
        addFile(list, file.filePath(),
                isTuning ? tr("%1 (tuning)").arg(name) : tr("%1 (piece)").arg(name));
    }
}

void StartPage::showRecentFiles()
{
    while (QLayoutItem* item = recentList_->takeAt(0)) {
        // One of these buttons may have been clicked to open the file that is now listed.
        item->widget()->setParent(nullptr);
        item->widget()->deleteLater();
        delete item;
    }
    recentList_->addWidget(makeHeading(tr("Recent files"), 1.0));
    std::error_code error;
    for (const QString& path : ShellActions::recentFiles().mid(0, kShownFiles))
        if (const auto file = pathOf(path); std::filesystem::exists(file, error))
            addFile(*recentList_, path, displayName(file));
    recent_->setVisible(recentList_->count() > 1);
}

void StartPage::arrangeCards()
{
    const bool isLow = viewport()->height() < kLowLines * fontMetrics().height();
    for (auto* explanation : widget()->findChildren<QWidget*>(kExplanation))
        explanation->setHidden(isLow);
    const int width = viewport()->width() - 2 * kMargin;
    const int cardWidth = fontMetrics().averageCharWidth() * kCardLetters;
    const int columns = width >= 4 * cardWidth ? 4 : width >= 2 * cardWidth ? 2 : 1;
    const auto setDirection = [this](QBoxLayout::Direction direction) {
        for (QWidget* card : cards_)
            static_cast<QBoxLayout*>(card->layout())->setDirection(direction);
    };
    const int room = (width - (columns - 1) * cardGrid_->horizontalSpacing()) / columns;
    const auto isTooWide = [&](QWidget* card) {
        return card->layout()->minimumSize().width() > room;
    };
    setDirection(isLow ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
    if (isLow && std::ranges::any_of(cards_, isTooWide))
        setDirection(QBoxLayout::TopToBottom);
    for (int i = 0; i < static_cast<int>(cards_.size()); ++i)
        cardGrid_->addWidget(cards_[i], i / columns, i % columns);
    for (int column = 0; column < 4; ++column)
        cardGrid_->setColumnStretch(column, column < columns ? 1 : 0);
}

void StartPage::resizeEvent(QResizeEvent* event)
{
    arrangeCards();
    QScrollArea::resizeEvent(event);
}

void StartPage::showEvent(QShowEvent* event)
{
    showRecentFiles();
    QScrollArea::showEvent(event);
}

} // namespace velmora
