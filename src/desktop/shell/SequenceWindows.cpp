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

/// How far a window that opens beside others lies from the place of the last one.
constexpr QPoint kCascade(24, 24);

/// One line for each.
QString listed(const std::vector<Abandoned>& found)
{
    QStringList lines;
    for (const Abandoned& one : found) {
        const auto& path = one.sequence.path;
        const QDateTime time =
            QDateTime::fromMSecsSinceEpoch(one.sequence.time.time_since_epoch().count());
        lines += SequenceWindows::tr("%1, %2 notes, %3")
                     .arg(path.empty() ? SequenceWindows::tr("Untitled")
                                       : QString::fromStdString(path.filename().string()))
                     .arg(one.sequence.notes.size())
                     .arg(QLocale().toString(time, QLocale::ShortFormat));
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

SequenceWindow& SequenceWindows::make(const QString& name, RecoveryFile recovery)
{
    auto* window = new SequenceWindow(application_, commands_, name, std::move(recovery));
    if (!windows_.empty())
        window->move(windows_.back()->pos() + kCascade);
    windows_.push_back(window);
    connect(window, &SequenceWindow::becameMain, this, [this, window] { setMain(window); });
    connect(window, &SequenceWindow::resignedMain, this, [this, window] {
        if (main_ == window)
            setMain(nullptr);
    });
    connect(window, &SequenceWindow::closing, this, [this, window] { remove(*window); });
    connect(window, &SequenceWindow::zoomed, this, &SequenceWindows::zoomed);
    connect(&window->document(), &SequenceDocument::frame, window, [this, window] {
        if (keyboard_.doDraw() == &window->document())
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
    setMain(&window); // where the desktop does not let it come to the front, too
}

void SequenceWindows::create()
{
    show(make(unusedName()));
}

std::string SequenceWindows::open(const QString& path)
{
    for (SequenceWindow* window : windows_) {
        if (window->document().path() == path.toStdString()) {
            bringToFront(*window);
            return {};
        }
    }
    SequenceWindow& window = make({});
    window.document().readFromURL(path.toStdString());
    std::string error = window.document().errorString();
    if (error.empty())
        show(window);
    else
        window.closeAsIs();
    return error;
}

void SequenceWindows::offerAbandoned()
{
    std::vector<Abandoned> found = RecoveryFile::abandoned();
    if (found.empty())
        return;
    QMessageBox box(QMessageBox::Question, tr("Velmora"),
                    tr("Velmora was not closed properly: recover what was not saved?"),
                    QMessageBox::NoButton, QApplication::activeWindow());
    box.setInformativeText(listed(found));
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
        SequenceWindow& window = make(name, std::move(one.file));
        window.document().recover(one.sequence);
        show(window);
    }
}

bool SequenceWindows::closeAll()
{
    // While the user makes up his mind, others may be opened from without.
    const std::vector<QPointer<SequenceWindow>> asked(windows_.begin(), windows_.end());
    for (const auto& window : asked) {
        if (window == nullptr || !window->isBusyOrModified())
            continue;
        bringToFront(*window);
        if (!window->askToClose())
            return false;
    }
    while (!windows_.empty())
        windows_.back()->closeAsIs();
    return true;
}

void SequenceWindows::updateDocumentSizes()
{
    for (SequenceWindow* window : windows_)
        window->updateDocumentSizes();
}

void SequenceWindows::stopPlaying()
{
    for (SequenceWindow* window : windows_) {
        if (window->document().mode() == SequenceDocument::Mode::Playing)
            window->document().play();
    }
}

void SequenceWindows::handleKey(const QKeyEvent& event)
{
    if (main_ != nullptr)
        main_->handleKey(event);
}

void SequenceWindows::setMain(SequenceWindow* window)
{
    main_ = window;
    keyboard_.setDocument(window == nullptr ? nullptr : &window->document());
}

void SequenceWindows::remove(SequenceWindow& window)
{
    window.disconnect(this); // it may still come to the front on its way out
    windows_.erase(std::find(windows_.begin(), windows_.end(), &window));
    if (main_ == &window)
        setMain(nullptr);
}

QString SequenceWindows::unusedName()
{
    ++names_;
    return names_ == 1 ? tr("Untitled") : tr("Untitled %1").arg(names_);
}

} // namespace velmora
