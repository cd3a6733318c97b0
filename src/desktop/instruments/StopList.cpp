#include "desktop/instruments/StopList.h"

#include "app/AppDelegate.h"
#include "desktop/instruments/StopRow.h"
#include "desktop/widgets/SearchField.h"
#include "desktop/widgets/scrolling.h"

#include <QEvent>
#include <QScrollArea>
#include <QVBoxLayout>

#include <optional>

namespace velmora {

namespace {

/// With more stops than this, there is a field to search them.
constexpr std::size_t kSearchedStops = 8;

constexpr int kLeastSearchedHeight = 120;

} // namespace

StopList::StopList(AppDelegate& application)
    : application_(application), search_(new SearchField(tr("Find a stop")))
{
    auto* content = new QWidget;
    column_ = new QVBoxLayout(content);
    column_->setContentsMargins({});
    column_->setSpacing(2);
    column_->addStretch();
    scrollArea_ = newScrollArea(content);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(search_);
    layout->addWidget(scrollArea_, 1);
    layout->addStretch();
    connect(search_, &QLineEdit::textChanged, this, &StopList::filter);
    connect(search_, &SearchField::left, this, [this] { step(-1, 1); });
}

void StopList::showStops(const std::vector<std::pair<QString, float>>& stops)
{
    QWidget& content = *scrollArea_->widget();
    content.hide(); // or each row would be laid out on its own
    makeRows(stops.size());
    count_ = stops.size();
    for (std::size_t i = 0; i < count_; ++i)
        rows_[i]->showStop(stops[i].first, stops[i].second);
    search_->setVisible(count_ > kSearchedStops);
    search_->clear();
    filter();
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
    const bool isSearched = count_ > kSearchedStops;
    // A few stops are all in sight, and take no more room than they need.
    const int height = column_->sizeHint().height();
    scrollArea_->setMinimumHeight(isSearched ? kLeastSearchedHeight : height);
    scrollArea_->setMaximumHeight(isSearched ? QWIDGETSIZE_MAX : height);
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

void StopList::filter()
{
    std::optional<std::size_t> first;
    for (std::size_t i = 0; i < rows_.size(); ++i) {
        const bool isFound = i < count_ && search_->finds(rows_[i]->name());
        rows_[i]->setVisible(isFound);
        if (isFound && !first)
            first = i;
    }
    if (first)
        enter(*first);
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
    for (int next = stop + rows; next >= 0 && next < static_cast<int>(count_); next += rows) {
        StopRow& row = *rows_[static_cast<std::size_t>(next)];
        if (row.isHidden())
            continue;
        row.focusName();
        return;
    }
    if (rows < 0) // the field is above the first row
        search_->setFocus();
}

} // namespace velmora
