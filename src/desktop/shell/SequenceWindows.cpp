#include "desktop/shell/SequenceWindows.h"

#include "desktop/keyboard/KeyboardView.h"
#include "desktop/shell/Commands.h"
#include "desktop/shell/SequenceWindow.h"
#include "desktop/widgets/windowPlace.h"

#include <QApplication>
#include <QDateTime>
#include <QLocale>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>

#include <algorithm>

namespace velmora {

namespace {

/// The offset of a new window from the one opened before it.
constexpr QPoint kCascade(24, 24);

/// Describes each sequence on a line of its own.
QString listOf(const std::vector<Abandoned>& found)
{
    QStringList lines;
    for (const Abandoned& one : found) {
        const auto& path = one.sequence.path;
        const QDateTime time =
            QDateTime::fromMSecsSinceEpoch(one.sequence.time.time_since_epoch().count());
        const std::size_t notes = one.sequence.notes.size();
        lines += SequenceWindows::tr("%1, %2, %3")
                     .arg(path.empty() ? SequenceWindows::tr("Untitled")
                                       : QString::fromStdString(path.filename().string()),
                          notes == 1 ? SequenceWindows::tr("1 note")
                                     : SequenceWindows::tr("%1 notes").arg(notes),
                          QLocale().toString(time, QLocale::ShortFormat));
    }
    return lines.join('\n');
}

} // namespace

SequenceWindows::SequenceWindows(AppDelegate& application, Commands& commands,
                                 KeyboardView& keyboard)
    : application_(application), commands_(commands), keyboard_(keyboard)
{
}

SequenceWindows::~SequenceWindows()
{
    keyboard_.setDocument(nullptr);
    for (SequenceWindow* window : windows_) {
        window->disconnect(this);
        delete window;
    }
}

SequenceWindow& SequenceWindows::makeWindow(const QString& name, RecoveryFile recovery)
{
    auto* window = new SequenceWindow(application_, commands_, name, std::move(recovery));
    if (!windows_.empty())
        window->move(windows_.back()->pos() + kCascade);
    windows_.push_back(window);
    connect(window, &SequenceWindow::activated, this, [this, window] { setCurrent(window); });
    connect(window, &SequenceWindow::minimized, this, [this, window] {
        if (current_ == window)
            setCurrent(nullptr);
    });
    connect(window, &SequenceWindow::closing, this, [this, window] { remove(*window); });
    connect(window, &SequenceWindow::zoomed, this, &SequenceWindows::zoomed);
    connect(&window->document().transport(), &Transport::frame, window, [this, window] {
        keyboard_.refresh();
        if (keyboard_.document() == &window->document().practice())
            window->redraw();
    });
    emit opened(*window);
    return *window;
}

void SequenceWindows::show(SequenceWindow& window)
{
    window.showDocument();
    bringToFront(window);
}

void SequenceWindows::bringToFront(SequenceWindow& window)
{
    present(window);
    setCurrent(&window); // even if the desktop does not let the window become active
}

void SequenceWindows::create()
{
    show(makeWindow(unusedName()));
}

std::string SequenceWindows::open(const QString& path)
{
    for (SequenceWindow* window : windows_) {
        if (window->document().path() == path.toStdString()) {
            bringToFront(*window);
            return {};
        }
    }
    SequenceWindow& window = makeWindow({});
    window.document().read(path.toStdString());
    std::string error = window.document().errorString();
    if (error.empty())
        show(window);
    else
        window.closeWithoutAsking();
    return error;
}

void SequenceWindows::offerAbandoned()
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
        SequenceWindow& window = makeWindow(name, std::move(one.file));
        window.document().recover(one.sequence);
        show(window);
    }
}

bool SequenceWindows::closeAll()
{
    // Files, and thus windows, may be opened from outside while a question is open.
    const std::vector<QPointer<SequenceWindow>> asked(windows_.begin(), windows_.end());
    for (const auto& window : asked) {
        if (window == nullptr || !window->saver().isBusyOrModified())
            continue;
        bringToFront(*window);
        if (!window->saver().askToClose())
            return false;
    }
    while (!windows_.empty())
        windows_.back()->closeWithoutAsking();
    return true;
}

void SequenceWindows::updateRollSizes()
{
    for (SequenceWindow* window : windows_)
        window->updateRollSize();
}

void SequenceWindows::stopPlaying()
{
    for (SequenceWindow* window : windows_) {
        Transport& transport = window->document().transport();
        if (transport.mode() == Transport::Mode::Playing)
            transport.play();
    }
}

void SequenceWindows::handleKey(const QKeyEvent& event)
{
    if (current_ != nullptr)
        current_->handleKey(event);
}

void SequenceWindows::perform(LearnedAction::Kind action)
{
    if (current_ != nullptr)
        current_->perform(action);
}

void SequenceWindows::setCurrent(SequenceWindow* window)
{
    current_ = window;
    keyboard_.setDocument(window == nullptr ? nullptr : &window->document().practice());
}

void SequenceWindows::remove(SequenceWindow& window)
{
    window.disconnect(this); // it may still become active while it closes
    windows_.erase(std::find(windows_.begin(), windows_.end(), &window));
    if (current_ == &window)
        setCurrent(nullptr);
}

QString SequenceWindows::unusedName()
{
    ++names_;
    return names_ == 1 ? tr("Untitled") : tr("Untitled %1").arg(names_);
}

} // namespace velmora
