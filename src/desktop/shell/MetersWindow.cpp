#include "desktop/shell/MetersWindow.h"

#include "app/AppDelegate.h"
#include "desktop/widgets/HelpButton.h"
#include "desktop/widgets/closeByKeys.h"
#include "desktop/widgets/messages.h"
#include "desktop/widgets/windowPlace.h"

#include <QFormLayout>
#include <QLabel>
#include <QVBoxLayout>

namespace velmora {

namespace {

constexpr int kReadingMilliseconds = 500;
constexpr int kTextLetters = 66; ///< The room for a reading, in letters. Longer ones are wrapped.

QLabel* newLabel()
{
    auto* label = new QLabel;
    label->setTextFormat(Qt::PlainText);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    return label;
}

} // namespace

MetersWindow::MetersWindow(AppDelegate& application)
    : application_(application), lines_(new QFormLayout)
{
    setWindowTitle(tr("Meters"));
    lines_->setLabelAlignment(Qt::AlignRight);
    auto* column = new QVBoxLayout(this);
    column->addLayout(lines_);
    column->addWidget(new HelpButton("meters", *this), 0, Qt::AlignRight);
    timer_.setInterval(kReadingMilliseconds);
    connect(&timer_, &QTimer::timeout, this, &MetersWindow::update);
    closeByKeys(*this);
    rememberPlace(*this, "meters");
}

void MetersWindow::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    meters_.emplace(application_);
    update();
    resize(size().expandedTo(sizeHint())); // before the window manager looks for its place
    update();                              // at the width that it has now
    timer_.start();
}

void MetersWindow::hideEvent(QHideEvent* event)
{
    QWidget::hideEvent(event);
    timer_.stop();
    meters_.reset();
}

void MetersWindow::update()
{
    const auto reading = describe(meters_->read());
    const int count = static_cast<int>(reading.size());
    while (lines_->rowCount() > count)
        lines_->removeRow(count);
    while (lines_->rowCount() < count) {
        QLabel* text = newLabel();
        text->setWordWrap(true);
        text->setMinimumWidth(kTextLetters * fontMetrics().averageCharWidth());
        QLabel* name = newLabel();
        lines_->addRow(name, text);
        for (QLabel* label : {name, text})
            label->show(); // at once, so that the window gets its size
    }
    const auto show = [&](int row, QFormLayout::ItemRole role, const QString& text) {
        auto* label = static_cast<QLabel*>(lines_->itemAt(row, role)->widget());
        label->setText(text);
    };
    for (int row = 0; row < count; ++row) {
        const auto& [title, text] = reading[static_cast<std::size_t>(row)];
        show(row, QFormLayout::LabelRole, tr("%1:").arg(translatedTitle(title)));
        show(row, QFormLayout::FieldRole, translated(text));
    }
    setMinimumHeight(layout()->totalHeightForWidth(width())); // for the lines that are wrapped
}

} // namespace velmora
