#include "desktop/shell/SequencePages.h"

#include "app/AppDelegate.h"
#include "desktop/keyboard/KeyboardView.h"
#include "desktop/shell/SequencePage.h"
#include "desktop/shell/ShellActions.h"
#include "desktop/widgets/messages.h"
#include "desktop/widgets/windowPlace.h"
#include "platform/pathNames.h"

#include <QApplication>
#include <QDateTime>
#include <QLocale>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QSessionManager>
#include <QTabWidget>
#include <QWindow>

#include <algorithm>

namespace velmora {

namespace {

/// Describes each sequence on a line of its own.
QString listOf(const std::vector<Abandoned>& found)
{
    QStringList lines;
    for (const Abandoned& one : found) {
        const auto& path = one.sequence.path;
        const QDateTime time =
            QDateTime::fromMSecsSinceEpoch(one.sequence.time.time_since_epoch().count());
        lines += SequencePages::tr("%1, %n note(s), %2", nullptr,
                                   static_cast<int>(one.sequence.notes.size()))
                     .arg(path.empty() ? SequencePages::tr("Untitled") : displayName(path),
                          QLocale().toString(time, QLocale::ShortFormat));
    }
    return lines.join('\n');
}

} // namespace

SequencePages::SequencePages(AppDelegate& application, ShellActions& shell,
                             SequenceActions& actions, QTabWidget& tabs, KeyboardView& keyboard)
    : application_(application), shell_(shell), actions_(actions), tabs_(tabs), keyboard_(keyboard)
{
    connect(&tabs_, &QTabWidget::currentChanged, this,
            [this] { setCurrent(static_cast<SequencePage*>(tabs_.currentWidget())); });
    connect(&tabs_, &QTabWidget::tabCloseRequested, this,
            [this](int index) { close(*static_cast<SequencePage*>(tabs_.widget(index))); });
    connect(&actions_, &SequenceActions::rollTurned, this, &SequencePages::updateRollSizes);
    connect(
        qApp, &QGuiApplication::commitDataRequest, this,
        [this](QSessionManager& manager) { answerLogout(manager); }, Qt::DirectConnection);
    connect(qApp, &QApplication::focusWindowChanged, this, [this] {
        const QWidget* active = QApplication::activeWindow();
        for (SequencePage* page : pages_)
            if (page->window() == active && page->isWindow())
                setCurrent(page);
        if (active == tabs_.window() && tabs_.count() > 0)
            setCurrent(static_cast<SequencePage*>(tabs_.currentWidget()));
    });
}

SequencePages::~SequencePages()
{
    tabs_.disconnect(this);
    setCurrent(nullptr);
    for (SequencePage* page : pages_) {
        page->disconnect(this);
        delete page;
    }
}

SequencePage& SequencePages::makePage(const QString& name, RecoveryFile recovery)
{
    auto* page = new SequencePage(application_, shell_, name, std::move(recovery));
    pages_.push_back(page);
    page->installEventFilter(this);
    connect(page, &SequencePage::titleChanged, this, [this, page] { showTitle(*page); });
    connect(page, &SequencePage::message, this, &SequencePages::message);
    connect(page, &SequencePage::unprotected, this, [this](const QString& why) {
        if (!std::exchange(wasUnprotected_, true))
            emit unprotected(why);
    });
    connect(&page->document(), &SequenceDocument::voicesUsed, this,
            [this, page] { stopOthers(*page); });
    connect(&page->document().transport(), &Transport::frame, page, [this, page] {
        keyboard_.refresh();
        if (current_ == page)
            page->redraw();
    });
    emit opened(*page);
    return *page;
}

void SequencePages::show(SequencePage& page)
{
    page.showDocument();
    tabs_.addTab(&page, {});
    showTitle(page);
    select(page);
}

void SequencePages::select(SequencePage& page)
{
    if (page.isWindow())
        present(page);
    else
        tabs_.setCurrentWidget(&page);
    setCurrent(&page); // even if the desktop does not let the window become active
    page.focusRoll();
}

SequencePage& SequencePages::create()
{
    SequencePage& page = makePage(unusedName());
    show(page);
    return page;
}

std::string SequencePages::open(const QString& path)
{
    for (SequencePage* page : pages_) {
        if (page->document().path() == pathOf(path)) {
            select(*page);
            return {};
        }
    }
    SequencePage& page = makePage(textOf(pathOf(path).stem())); // a score keeps no file
    page.document().read(pathOf(path));
    std::string error = page.document().errorString();
    if (error.empty() && (page.document().damage().empty() || askToOpenDamaged(page.document())))
        show(page);
    else
        remove(page);
    return error;
}

bool SequencePages::askToOpenDamaged(const SequenceDocument& document)
{
    const auto notes = static_cast<int>(document.sequence().notes().size());
    QMessageBox box(QMessageBox::Warning, tr("Velmora"),
                    tr("%1 is damaged. Open what could be read?").arg(displayName(document.path())),
                    QMessageBox::Open | QMessageBox::Cancel, QApplication::activeWindow());
    box.setInformativeText(tr("%n note(s) could be read.", nullptr, notes) + '\n' +
                           translated(document.damage()));
    return box.exec() == QMessageBox::Open;
}

void SequencePages::offerAbandoned()
{
    std::vector<Abandoned> found = RecoveryFile::abandoned();
    if (found.empty())
        return;
    QMessageBox box(QMessageBox::Question, tr("Velmora"),
                    tr("Velmora was not closed properly. Recover the unsaved sequences?"),
                    QMessageBox::NoButton, QApplication::activeWindow());
    box.setInformativeText(listOf(found));
    const QPushButton* recover = box.addButton(tr("Recover"), QMessageBox::AcceptRole);
    const QPushButton* discard = box.addButton(tr("Discard"), QMessageBox::DestructiveRole);
    box.setEscapeButton(box.addButton(tr("Ask Later"), QMessageBox::RejectRole));
    box.exec();
    for (Abandoned& one : found) {
        if (box.clickedButton() == discard)
            one.file.discard();
        if (box.clickedButton() != recover)
            continue;
        const QString name = one.sequence.path.empty() ? unusedName() : QString();
        SequencePage& page = makePage(name, std::move(one.file));
        page.document().recover(one.sequence);
        show(page);
    }
}

bool SequencePages::close(SequencePage& page)
{
    if (!page.saver().askToClose())
        return false;
    remove(page);
    return true;
}

bool SequencePages::askToCloseAll()
{
    // Files, and thus pages, may be opened from outside while a question is open.
    const std::vector<QPointer<SequencePage>> asked(pages_.begin(), pages_.end());
    for (const auto& page : asked) {
        if (page == nullptr || !page->saver().isBusyOrModified())
            continue;
        select(*page);
        if (!page->saver().askToClose())
            return false;
    }
    return true;
}

bool SequencePages::closeAll()
{
    if (!askToCloseAll())
        return false;
    emit closingAll();
    while (!pages_.empty())
        remove(*pages_.back());
    return true;
}

void SequencePages::setOwnWindow(SequencePage& page, bool own)
{
    if (own == page.isWindow())
        return;
    page.setTransport(own ? &actions_ : nullptr);
    if (own) {
        const QSize size = page.size();
        tabs_.removeTab(tabs_.indexOf(&page));
        page.setParent(nullptr, Qt::Window);
        page.resize(size);
        rememberPlace(page, "sequence");
    } else {
        tabs_.addTab(&page, {});
    }
    showTitle(page);
    select(page);
}

void SequencePages::updateRollSizes()
{
    for (SequencePage* page : pages_)
        page->updateRollSize();
}

void SequencePages::stopPlaying()
{
    for (SequencePage* page : pages_) {
        Transport& transport = page->document().transport();
        if (transport.mode() == Transport::Mode::Playing)
            transport.play();
    }
}

// See docs/decisions.md, 196.
void SequencePages::stopOthers(SequencePage& page)
{
    const auto changesPrograms = [](SequencePage& one) {
        return !one.document().transport().playback().programs().empty();
    };
    const VoiceSounds sounds = page.document().voices().sounds();
    for (SequencePage* other : pages_) {
        Transport& transport = other->document().transport();
        const bool isAlike = other->document().voices().sounds() == sounds &&
                             !changesPrograms(*other) && !changesPrograms(page);
        if (other == &page || isAlike || transport.mode() != Transport::Mode::Playing)
            continue;
        transport.play(); // stops it
        emit message(tr("“%1” has stopped, because the voices of “%2” sound otherwise.")
                         .arg(other->saver().displayName(), page.saver().displayName()));
    }
}

void SequencePages::showTitle(SequencePage& page)
{
    if (const int index = tabs_.indexOf(&page); index >= 0) {
        QString name = page.saver().displayName().replace("&", "&&");
        tabs_.setTabText(index, page.isWindowModified() ? tr("%1 •").arg(name) : name);
        tabs_.setTabToolTip(index, textOf(page.document().path()));
    }
    if (&page == current_)
        emit currentChanged();
}

void SequencePages::setCurrent(SequencePage* page)
{
    if (page == current_)
        return;
    if (current_ != nullptr)
        current_->document().setLive(false);
    current_ = page;
    if (page != nullptr)
        page->document().setLive(true);
    actions_.setTarget(page == nullptr ? SequenceActions::Target{} : page->target());
    keyboard_.setDocument(page == nullptr ? nullptr : &page->document().practice());
    emit currentChanged();
}

void SequencePages::remove(SequencePage& page)
{
    page.disconnect(this); // it may still become active while it closes
    page.document().transport().disconnect(&page);
    std::erase(pages_, &page);
    page.settle();
    const bool wasCurrent = current_ == &page;
    if (const int index = tabs_.indexOf(&page); index >= 0)
        tabs_.removeTab(index); // which makes the next tab the current piece
    if (wasCurrent && current_ == &page)
        setCurrent(static_cast<SequencePage*>(tabs_.currentWidget()));
    page.hide();
    delete &page;
}

QString SequencePages::unusedName()
{
    ++names_;
    return names_ == 1 ? tr("Untitled") : tr("Untitled %1").arg(names_);
}

bool SequencePages::eventFilter(QObject* watched, QEvent* event)
{
    // A page that is being destroyed still has other events.
    auto* page = event->type() == QEvent::Close ? static_cast<SequencePage*>(watched) : nullptr;
    if (page == nullptr || !page->isWindow())
        return QObject::eventFilter(watched, event);
    // The page decides in the event loop, because it may be destroyed.
    event->ignore();
    QMetaObject::invokeMethod(
        this,
        [this, page = QPointer(page)] {
            if (page != nullptr)
                close(*page);
        },
        Qt::QueuedConnection);
    return true;
}

} // namespace velmora
