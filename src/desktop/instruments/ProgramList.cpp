#include "desktop/instruments/ProgramList.h"

#include "app/programNames.h"
#include "desktop/widgets/SearchField.h"

#include <QCoreApplication>
#include <QSignalBlocker>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <array>

namespace velmora {

namespace {

constexpr int kGroupSize = 8;
constexpr int kLeastHeight = 120;
constexpr int kProgramRole = Qt::UserRole;

/// The groups of the General MIDI standard.
constexpr std::array kGroups = {QT_TRANSLATE_NOOP("velmora::ProgramList", "Piano"),
                                QT_TRANSLATE_NOOP("velmora::ProgramList", "Chromatic Percussion"),
                                QT_TRANSLATE_NOOP("velmora::ProgramList", "Organ"),
                                QT_TRANSLATE_NOOP("velmora::ProgramList", "Guitar"),
                                QT_TRANSLATE_NOOP("velmora::ProgramList", "Bass"),
                                QT_TRANSLATE_NOOP("velmora::ProgramList", "Strings"),
                                QT_TRANSLATE_NOOP("velmora::ProgramList", "Ensemble"),
                                QT_TRANSLATE_NOOP("velmora::ProgramList", "Brass"),
                                QT_TRANSLATE_NOOP("velmora::ProgramList", "Reed"),
                                QT_TRANSLATE_NOOP("velmora::ProgramList", "Pipe"),
                                QT_TRANSLATE_NOOP("velmora::ProgramList", "Synth Lead"),
                                QT_TRANSLATE_NOOP("velmora::ProgramList", "Synth Pad"),
                                QT_TRANSLATE_NOOP("velmora::ProgramList", "Synth Effects"),
                                QT_TRANSLATE_NOOP("velmora::ProgramList", "Ethnic"),
                                QT_TRANSLATE_NOOP("velmora::ProgramList", "Percussive"),
                                QT_TRANSLATE_NOOP("velmora::ProgramList", "Sound Effects")};

} // namespace

ProgramList::ProgramList() : search_(new SearchField(tr("Find a program"))), tree_(new QTreeWidget)
{
    tree_->setHeaderHidden(true);
    tree_->setRootIsDecorated(false);
    tree_->setItemsExpandable(false);
    tree_->setUniformRowHeights(true);
    tree_->setIndentation(tree_->indentation() / 2);
    tree_->setFocusPolicy(Qt::TabFocus);
    tree_->setMinimumHeight(kLeastHeight);
    tree_->setAccessibleName(tr("Program"));
    tree_->setToolTip(tr("General MIDI program"));
    QFont bold = tree_->font();
    bold.setBold(true);
    for (int program = 0; const char* name : kMIDIInstrumentNames) {
        if (program % kGroupSize == 0) {
            auto* group = new QTreeWidgetItem(
                tree_, {tr(kGroups.at(static_cast<std::size_t>(program / kGroupSize)))});
            group->setFlags(Qt::ItemIsEnabled);
            group->setFont(0, bold);
        }
        auto* item =
            new QTreeWidgetItem(tree_->topLevelItem(program / kGroupSize),
                                {QCoreApplication::translate("velmora::programNames", name)});
        item->setData(0, kProgramRole, program++);
    }
    tree_->expandAll();

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(search_);
    layout->addWidget(tree_, 1);
    connect(tree_, &QTreeWidget::currentItemChanged, this, &ProgramList::choose);
    connect(search_, &QLineEdit::textChanged, this, &ProgramList::filter);
    connect(search_, &QLineEdit::returnPressed, this, &ProgramList::chooseFirstFound);
    connect(search_, &SearchField::left, this, [this] {
        tree_->setFocus(Qt::TabFocusReason);
        if (tree_->currentItem() == nullptr || tree_->currentItem()->isHidden())
            chooseFirstFound();
    });
}

void ProgramList::showProgram(int program)
{
    const QSignalBlocker blocker(tree_);
    tree_->setCurrentItem(tree_->topLevelItem(program / kGroupSize)->child(program % kGroupSize));
}

void ProgramList::choose(const QTreeWidgetItem* item)
{
    if (item != nullptr && item->parent() != nullptr)
        emit programChosen(static_cast<std::uint8_t>(item->data(0, kProgramRole).toInt()));
}

void ProgramList::filter()
{
    for (int i = 0; i < tree_->topLevelItemCount(); ++i) {
        QTreeWidgetItem& group = *tree_->topLevelItem(i);
        bool isAnyFound = false;
        for (int j = 0; j < kGroupSize; ++j) {
            const bool isFound = search_->finds(group.text(0) + ' ' + group.child(j)->text(0));
            group.child(j)->setHidden(!isFound);
            isAnyFound |= isFound;
        }
        group.setHidden(!isAnyFound);
    }
    if (tree_->currentItem() != nullptr)
        tree_->scrollToItem(tree_->currentItem());
}

void ProgramList::chooseFirstFound()
{
    for (int i = 0; i < tree_->topLevelItemCount(); ++i) {
        for (int j = 0; j < kGroupSize; ++j) {
            if (QTreeWidgetItem* item = tree_->topLevelItem(i)->child(j); !item->isHidden()) {
                tree_->setCurrentItem(item);
                return;
            }
        }
    }
}

} // namespace velmora
