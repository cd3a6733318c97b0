#include "desktop/instruments/ProgramList.h"

#include "app/programNames.h"
#include "desktop/widgets/SearchField.h"
#include "audio/Program.h"

#include <QCoreApplication>
#include <QSignalBlocker>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <algorithm>
#include <array>

namespace velmora {

namespace {

constexpr int kGroupSize = 8;
constexpr int kLeastHeight = 120;
constexpr int kPositionRole = Qt::UserRole;

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

QString groupOf(const Program& program)
{
    if (program.isPercussion)
        return ProgramList::tr("Drum kits");
    if (program.name.empty())
        return ProgramList::tr(kGroups.at(static_cast<std::size_t>(program.number / kGroupSize)));
    return ProgramList::tr("Bank %1").arg(program.bank);
}

/// Returns the name of a program behind its number, which counts from 1 as on keyboards.
QString textOf(const Program& program)
{
    if (program.name.empty())
        return QCoreApplication::translate(
            "velmora::programNames",
            kMIDIInstrumentNames.at(static_cast<std::size_t>(program.number)));
    return QString("%1 %2").arg(program.number + 1).arg(QString::fromStdString(program.name));
}

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

void ProgramList::showPrograms(std::span<const Program> programs)
{
    if (std::ranges::equal(programs, programs_))
        return;
    programs_.assign(programs.begin(), programs.end());
    const QSignalBlocker blocker(tree_);
    tree_->clear();
    items_.clear();
    QFont bold = tree_->font();
    bold.setBold(true);
    QTreeWidgetItem* group = nullptr;
    for (const Program& program : programs_) {
        const QString title = groupOf(program);
        if (group == nullptr || group->text(0) != title) {
            const auto found = tree_->findItems(title, Qt::MatchExactly);
            group = found.isEmpty() ? new QTreeWidgetItem(tree_, {title}) : found.first();
            group->setFlags(Qt::ItemIsEnabled);
            group->setFont(0, bold);
        }
        auto* item = new QTreeWidgetItem(group, {textOf(program)});
        item->setData(0, kPositionRole, static_cast<int>(items_.size()));
        items_.push_back(item);
    }
    tree_->expandAll();
    search_->clear();
}

void ProgramList::showProgram(int position)
{
    const QSignalBlocker blocker(tree_);
    if (static_cast<std::size_t>(position) < items_.size())
        tree_->setCurrentItem(items_[static_cast<std::size_t>(position)]);
}

void ProgramList::choose(const QTreeWidgetItem* item)
{
    if (item != nullptr && item->parent() != nullptr)
        emit programChosen(static_cast<std::size_t>(item->data(0, kPositionRole).toInt()));
}

void ProgramList::filter()
{
    for (int i = 0; i < tree_->topLevelItemCount(); ++i) {
        QTreeWidgetItem& group = *tree_->topLevelItem(i);
        bool isAnyFound = false;
        for (int j = 0; j < group.childCount(); ++j) {
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
    const auto found =
        std::ranges::find_if(items_, [](const QTreeWidgetItem* item) { return !item->isHidden(); });
    if (found != items_.end())
        tree_->setCurrentItem(*found);
}

} // namespace velmora
