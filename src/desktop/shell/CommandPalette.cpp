#include "desktop/shell/CommandPalette.h"

#include "desktop/widgets/Commands.h"
#include "desktop/widgets/SearchField.h"
#include "desktop/widgets/TwoLineDelegate.h"

#include <QAction>
#include <QKeyEvent>
#include <QLabel>
#include <QListWidget>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace velmora {

namespace {

/// The size of the palette in letters of average width and in lines, and the least distance from
/// the edges of the window, in pixels.
constexpr int kLetters = 60, kLines = 22, kDistance = 20;

} // namespace

CommandPalette::CommandPalette(const Commands& commands, QWidget* parent)
    : QFrame(parent, Qt::Popup), commands_(commands),
      search_(new SearchField(tr("Find a command or a tuning"))), list_(new QListWidget),
      nothing_(new QLabel(tr("Nothing has all these words.")))
{
    setFrameShape(StyledPanel);
    setAccessibleName(tr("Commands"));
    list_->setAccessibleName(tr("Commands"));
    list_->setItemDelegate(new TwoLineDelegate(list_));
    list_->setFocusPolicy(Qt::NoFocus); // the arrows work while one types
    search_->installEventFilter(this);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(search_);
    layout->addWidget(list_);
    layout->addWidget(nothing_, 1, Qt::AlignHCenter | Qt::AlignTop);
    connect(search_, &QLineEdit::textChanged, this, &CommandPalette::filter);
    connect(search_, &QLineEdit::returnPressed, this, &CommandPalette::perform);
    connect(list_, &QListWidget::itemClicked, this, &CommandPalette::perform);
}

void CommandPalette::open()
{
    fill();
    const QWidget& window = *parentWidget()->window();
    const QSize room = window.size() - QSize(2 * kDistance, 2 * kDistance);
    resize(QSize(fontMetrics().averageCharWidth() * kLetters, fontMetrics().height() * kLines)
               .boundedTo(room));
    move(window.mapToGlobal(QPoint((window.width() - width()) / 2, kDistance)));
    show();
    search_->setFocus(Qt::PopupFocusReason);
}

void CommandPalette::fill()
{
    list_->clear();
    performed_.clear();
    for (const auto& [action, group, defaults] : commands_.all()) {
        const QString shortcut = action->shortcut().toString(QKeySequence::NativeText);
        auto* item = new QListWidgetItem(
            action->iconText() + '\n' +
                (shortcut.isEmpty() ? group : tr("%1 – %2").arg(group, shortcut)),
            list_);
        performed_.emplace_back([action = action] { action->trigger(); });
        if (!action->isEnabled())
            item->setFlags(Qt::NoItemFlags);
    }
    if (choices_)
        for (Choice& choice : choices_()) {
            list_->addItem(choice.text);
            performed_.push_back(std::move(choice.choose));
        }
    search_->clear();
    filter();
}

void CommandPalette::filter()
{
    bool isAnyFound = false;
    for (int row = 0; row < list_->count(); ++row) {
        const bool isFound = search_->finds(list_->item(row)->text());
        list_->item(row)->setHidden(!isFound);
        isAnyFound = isAnyFound || isFound;
    }
    list_->setVisible(isAnyFound);
    nothing_->setVisible(!isAnyFound);
    list_->setCurrentRow(-1);
    moveBy(1);
    for (int row = 0; row < list_->count(); ++row) {
        const QListWidgetItem& item = *list_->item(row);
        if (item.isHidden() || (item.flags() & Qt::ItemIsEnabled) == 0 ||
            !search_->begins(item.text()))
            continue;
        list_->setCurrentRow(row);
        return;
    }
}

void CommandPalette::moveBy(int rows)
{
    for (int row = list_->currentRow() + rows; row >= 0 && row < list_->count(); row += rows) {
        const QListWidgetItem& item = *list_->item(row);
        if (item.isHidden() || (item.flags() & Qt::ItemIsEnabled) == 0)
            continue;
        list_->setCurrentRow(row);
        return;
    }
}

bool CommandPalette::eventFilter(QObject* /*watched*/, QEvent* event)
{
    if (event->type() != QEvent::KeyPress)
        return false;
    const int key = static_cast<QKeyEvent*>(event)->key();
    if (key == Qt::Key_Escape)
        close();
    else if (key == Qt::Key_Down || key == Qt::Key_Up)
        moveBy(key == Qt::Key_Down ? 1 : -1);
    else
        return false;
    return true;
}

void CommandPalette::perform()
{
    const QListWidgetItem* item = list_->currentItem();
    if (item == nullptr || (item->flags() & Qt::ItemIsEnabled) == 0)
        return;
    close(); // so that the command finds the focus where it was
    performed_.at(static_cast<std::size_t>(list_->row(item)))();
}

} // namespace velmora
