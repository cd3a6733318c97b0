#include "desktop/instruments/ProgressWindow.h"

#include "desktop/widgets/messages.h"

#include <QCoreApplication>
#include <QDialogButtonBox>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>
#include <limits>

namespace velmora {

namespace {

constexpr int kWidth = 420;

/// How often events are processed: often enough to look smooth, but not so often that it slows down
/// an import of tens of thousands of steps.
constexpr qint64 kEventMilliseconds = 30;

} // namespace

ProgressWindow::ProgressWindow() : bar_(new QProgressBar), label_(new QLabel)
{
    setWindowTitle(tr("Loading"));
    setWindowModality(Qt::ApplicationModal);
    setMinimumWidth(kWidth);
    bar_->setAccessibleName(tr("Progress"));
    bar_->setFocusPolicy(Qt::TabFocus); // so that screen readers say how far it is
    label_->setTextFormat(Qt::PlainText);
    // A long name must not widen the window.
    label_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Cancel);
    // Space and Return were meant for the piece when the window opened.
    buttons->button(QDialogButtonBox::Cancel)->setAutoDefault(false);
    connect(buttons, &QDialogButtonBox::rejected, this, &ProgressWindow::reject);

    auto* column = new QVBoxLayout(this);
    column->addWidget(label_);
    column->addWidget(bar_);
    column->addWidget(buttons);
}

void ProgressWindow::startProgress(long steps)
{
    bar_->setRange(0, static_cast<int>(std::min<long>(steps, std::numeric_limits<int>::max())));
    bar_->setValue(0);
    label_->clear();
    sinceEvents_.start();
    bar_->setFocus();
    show();
    QCoreApplication::processEvents();
}

void ProgressWindow::updateProgress(unsigned steps, const std::string& text)
{
    if (steps == 0)
        return;
    const long long done = static_cast<long long>(bar_->value()) + steps;
    bar_->setValue(static_cast<int>(std::min<long long>(done, bar_->maximum())));
    label_->setText(translated(text));
    if (done == bar_->maximum())
        endProgress();
    if (sinceEvents_.elapsed() < kEventMilliseconds)
        return;
    QCoreApplication::processEvents();
    sinceEvents_.start();
}

void ProgressWindow::endProgress()
{
    hide();
}

void ProgressWindow::reject()
{
    label_->setText(tr("Cancelling…"));
    emit cancelled();
}

} // namespace velmora
