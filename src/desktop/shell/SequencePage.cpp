#include "desktop/shell/SequencePage.h"

#include "app/AppDelegate.h"
#include "desktop/roll/LyricsPanel.h"
#include "desktop/roll/SequenceScrollView.h"
#include "desktop/roll/SequenceStatus.h"
#include "desktop/roll/SequenceView.h"
#include "desktop/roll/TransportBar.h"
#include "desktop/shell/exportAudio.h"

#include <QApplication>
#include <QTimer>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace velmora {

namespace {

/// The key in the middle of an empty piece.
constexpr int kEmptyMiddle = 60;

} // namespace

SequencePage::SequencePage(AppDelegate& application, ShellActions& actions, const QString& name,
                           RecoveryFile recovery)
    : application_(application), document_(application.player(), application.playing().reading()),
      editor_(document_), clock_(document_.transport()), keeper_(document_, std::move(recovery)),
      saver_(*this, document_, actions, name), scrollView_(new SequenceScrollView),
      lyrics_(new LyricsPanel(document_))
{
    makeView();
    connect(&document_, &SequenceDocument::changed, this, &SequencePage::showTitle);
    connect(&document_.transport(), &Transport::frame, this, &SequencePage::showTitle);
    connect(&keeper_, &RecoveryKeeper::failed, this, &SequencePage::unprotected);
    connect(&document_.undoStack(), &QUndoStack::cleanChanged, this, &SequencePage::showTitle);
    connect(&saver_, &SequenceSaver::saved, this, &SequencePage::showTitle);
    showTitle();
}

SequencePage::~SequencePage()
{
    if (!isSettled_)
        keeper_.keepForNextStart();
    // The widgets are destroyed after the document and must not receive its last signals.
    transport_.reset();
    scrollView_->view().setDocument(nullptr, nullptr);
    document_.transport().stop();
    document_.disconnect();
    document_.transport().disconnect();
    document_.recorder().disconnect();
    document_.undoStack().disconnect();
}

SequenceActions::Target SequencePage::target()
{
    return {.document = &document_, .editor = &editor_, .roll = scrollView_};
}

void SequencePage::makeView()
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->setSpacing(0);
    layout->addWidget(scrollView_, 1);
    layout->addWidget(lyrics_);
    layout->addWidget(new SequenceStatus(document_));
    scrollView_->view().setDocument(&document_, &editor_);
    setFocusProxy(scrollView_);
    connect(scrollView_, &SequenceScrollView::scrolledByUser, this,
            [this] { isScrolledAway_ = document_.transport().mode() != Transport::Mode::Stopped; });
    connect(&document_.transport(), &Transport::scrolled, this, &SequencePage::scrollTo);
    connect(&document_.transport(), &Transport::extentChanged, this, &SequencePage::updateRollSize);
    // This is queued, so that the roll does not follow the final scrolling when playing stops.
    connect(
        &document_.transport(), &Transport::modeChanged, this, [this] { isScrolledAway_ = false; },
        Qt::QueuedConnection);
}

void SequencePage::showDocument()
{
    document_.practice().midiInput(); // finds the first notes to practise
    lyrics_->readLyrics();
    updateRollSize();
    showTitle();
}

void SequencePage::redraw()
{
    scrollView_->view().update();
}

void SequencePage::updateRollSize()
{
    scrollView_->updateSize(document_.transport().extent());
}

void SequencePage::focusRoll()
{
    scrollView_->setFocus();
}

void SequencePage::handleKey(const QKeyEvent& event)
{
    QKeyEvent copy(event.type(), event.key(), event.modifiers(), event.nativeScanCode(),
                   event.nativeVirtualKey(), event.nativeModifiers(), event.text(),
                   event.isAutoRepeat(), static_cast<quint16>(event.count()));
    QApplication::sendEvent(&scrollView_->view(), &copy);
}

void SequencePage::setTransport(SequenceActions* actions)
{
    transport_.reset();
    if (actions == nullptr)
        return;
    transport_ = std::make_unique<TransportBar>(*actions, application_);
    transport_->setDocument(&document_);
    connect(transport_.get(), &TransportBar::done, this, &SequencePage::focusRoll);
    static_cast<QVBoxLayout*>(layout())->insertWidget(0, transport_.get());
}

void SequencePage::exportAudio()
{
    velmora::exportAudio(*this, document_, saver_.displayName(), application_,
                         [this](const QString& text) { emit message(text); });
}

void SequencePage::exportStems()
{
    velmora::exportStems(*this, document_, saver_.displayName(), application_,
                         [this](const QString& text) { emit message(text); });
}

void SequencePage::scrollTo(double step)
{
    if (!isScrolledAway_)
        scrollView_->scrollToStep(step);
}

void SequencePage::showTitle()
{
    // A file name may contain "[*]", Qt's placeholder for the mark of a modified window. Doubling
    // it shows it as it is.
    const QString title = saver_.displayName().replace("[*]", "[*][*]") + "[*]";
    if (title == windowTitle() && document_.isModified() == isWindowModified())
        return;
    setWindowTitle(title);
    setWindowModified(document_.isModified());
    emit titleChanged();
}

void SequencePage::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    if (std::exchange(wasShown_, true))
        return;
    updateRollSize();
    // The page gets its size once the window is laid out.
    QTimer::singleShot(0, this, &SequencePage::scrollToNotes);
}

void SequencePage::scrollToNotes()
{
    const auto& notes = document_.sequence().notes();
    const auto [lowest, highest] = std::ranges::minmax_element(notes, {}, &Note::key);
    const double middle = notes.empty() ? kEmptyMiddle : (lowest->key + highest->key) / 2.0;
    scrollView_->scrollToKey(middle);
    if (document_.transport().position() > 0.0) // it was open before
        document_.transport().revealPosition();
}

} // namespace velmora
