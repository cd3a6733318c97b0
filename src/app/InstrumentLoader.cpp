#include "app/InstrumentLoader.h"

#include "sound/OrganInstrument.h"
#include "sound/keys.h"

#include <algorithm>
#include <utility>

namespace velmora {

InstrumentLoader::InstrumentLoader(Player& player) : player_(player)
{
    // Half of the time is left to the windows.
    constexpr int kMilliseconds = 16;
    timer_.setInterval(kMilliseconds);
    connect(&timer_, &QTimer::timeout, this, qOverload<>(&InstrumentLoader::advance));
}

void InstrumentLoader::add(InstrumentDocument& document)
{
    if (!document.loadingProgress())
        return;
    loadings_.push_back({&document});
    timer_.start();
    showProgress(loadings_.back());
}

void InstrumentLoader::remove(const InstrumentDocument& document)
{
    const auto removed = std::erase_if(
        loadings_, [&](const Loading& loading) { return loading.document == &document; });
    if (removed > 0)
        emit progressed(QString::fromStdString(document.title()), 100);
}

void InstrumentLoader::advance()
{
    std::vector<const InstrumentDocument*> done;
    for (Loading& loading : loadings_) {
        advance(*loading.document);
        if (!loading.document->loadingProgress()) {
            done.push_back(loading.document);
            continue;
        }
        showProgress(loading);
    }
    if (std::exchange(haveStopsChanged_, false) || !done.empty())
        emit stopsChanged();
    finish(done);
}

void InstrumentLoader::showProgress(Loading& loading)
{
    const double progress = loading.document->loadingProgress().value_or(1.0);
    const int percent = std::min(static_cast<int>(100.0 * progress), 99);
    if (percent != std::exchange(loading.percent, percent))
        emit progressed(QString::fromStdString(loading.document->title()), percent);
}

void InstrumentLoader::stop()
{
    std::vector<const InstrumentDocument*> done;
    for (const Loading& loading : loadings_) {
        loading.document->stopLoading();
        done.push_back(loading.document);
    }
    if (!done.empty())
        emit stopsChanged();
    finish(done);
}

void InstrumentLoader::finish(const std::vector<const InstrumentDocument*>& done)
{
    for (const InstrumentDocument* document : done) {
        remove(*document);
        emit finished(*document);
    }
    if (loadings_.empty())
        timer_.stop();
}

void InstrumentLoader::advance(InstrumentDocument& document)
{
    document.continueLoading([&](std::size_t rank, const auto& change) {
        const bool isGuarded = player_.with([&](Instrument& current, Temperament& temperament) {
            change();
            if (&current != document.instrument())
                return;
            current.tune(temperament, 0, kLastKey);
            if (auto* organ = dynamic_cast<OrganInstrument*>(&current))
                organ->startRank(rank);
        });
        if (!isGuarded) // nobody plays
            change();
        haveStopsChanged_ = true;
    });
}

} // namespace velmora
