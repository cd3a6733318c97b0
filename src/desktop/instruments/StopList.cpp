#include "desktop/instruments/StopList.h"

#include "app/AppDelegate.h"
#include "desktop/instruments/StopRow.h"
#include "desktop/widgets/scrolling.h"

#include <QEvent>
#include <QScrollArea>
#include <QVBoxLayout>

namespace velmora {

StopList::StopList(AppDelegate& application) : application_(application)
{
    auto* content = new QWidget;
    column_ = new QVBoxLayout(content);
    column_->setContentsMargins({});
    column_->setSpacing(2);
    column_->addStretch();
    scrollArea_ = newScrollArea(content);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(scrollArea_, 1);
    layout->addStretch();
}

void StopList::showStops(const std::vector<std::pair<QString, float>>& stops)
{
    QWidget& content = *scrollArea_->widget();
    content.hide(); // or each row would be laid out on its own
    makeRows(stops.size());
    count_ = stops.size();
    for (std::size_t i = 0; i < count_; ++i)
        rows_[i]->showStop(stops[i].first, stops[i].second);
    for (std::size_t i = 0; i < rows_.size(); ++i)
        rows_[i]->setVisible(i < count_);
    if (count_ > 0)
        enter(0);
    fitHeight();
    content.show();
}

void StopList::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        fitHeight();
}

void StopList::fitHeight()
{
    column_->activate();
    // All stops are in sight, and take no more room than they need.
    scrollArea_->setFixedHeight(column_->sizeHint().height());
}

void StopList::makeRows(std::size_t count)
{
    while (rows_.size() < count) {
        const std::size_t stop = rows_.size();
        auto* row = new StopRow(application_, stop);
        connect(row, &StopRow::entered, this, [this, stop] { enter(stop); });
        connect(row, &StopRow::stepped, this,
                [this, stop](int rows) { step(static_cast<int>(stop), rows); });
        column_->insertWidget(static_cast<int>(stop), row);
        rows_.push_back(row);
    }
}

void StopList::showVolume(std::size_t stop, float volume)
{
    if (stop < count_)
        rows_[stop]->showVolume(volume);
}

void StopList::enter(std::size_t stop)
{
    rows_[reachable_]->setReachable(false);
    rows_[stop]->setReachable(true);
    reachable_ = stop;
    if (rows_[stop]->isAncestorOf(focusWidget()))
        scrollArea_->ensureWidgetVisible(rows_[stop], 0, 0);
}

void StopList::step(int stop, int rows)
{
    const int next = stop + rows;
    if (next >= 0 && next < static_cast<int>(count_))
        rows_[static_cast<std::size_t>(next)]->focusName();
}

} // namespace velmora
