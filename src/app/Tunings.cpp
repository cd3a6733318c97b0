#include "app/Tunings.h"

#include "app/Player.h"
#include "base/Log.h"
#include "tuning/FollowingMeantone.h"

#include <algorithm>
#include <utility>

namespace velmora {

namespace {

constexpr const char* kEqual = "Equal";
constexpr const char* kMeantone = "Quartercomma Meantone";

} // namespace

Tunings::Tunings(Player& player) : player_(player) {}

void Tunings::addBuiltins()
{
    auto equalTuning = TuningDocument::makeBuiltin(kEqual);
    play(*equalTuning);
    put(std::move(equalTuning));
    put(TuningDocument::makeBuiltin(kMeantone));
    emit changed();
}

void Tunings::put(std::unique_ptr<TuningDocument> document)
{
    add(std::move(document));
    emit listed();
}

void Tunings::add(std::unique_ptr<TuningDocument> document)
{
    // See docs/decisions.md, 19.
    named_[document->name()] = document.get();
    documents_.push_back(std::move(document));
}

void Tunings::replace(std::unique_ptr<TuningDocument> document)
{
    const auto named = named_.find(document->name());
    if (named == named_.end()) {
        put(std::move(document));
        return;
    }
    const auto place =
        std::ranges::find(documents_, named->second, &std::unique_ptr<TuningDocument>::get);
    named->second = document.get();
    *place = std::move(document);
    if (named->first != name_)
        return;
    play(*named->second);
    emit changed();
}

std::string Tunings::setMapping(const std::filesystem::path& file)
{
    const TuningDocument* document = current();
    if (document == nullptr)
        return {};
    auto mapped = document->withMapping(file);
    std::string error = mapped->errorString();
    if (error.empty())
        replace(std::move(mapped));
    return error;
}

void Tunings::preview(const TuningDocument* document)
{
    if (document == nullptr)
        document = current();
    if (document == nullptr)
        return;
    std::string name = std::move(name_);
    play(*document);
    name_ = std::move(name);
}

const TuningDocument* Tunings::current() const
{
    const auto found = named_.find(name_);
    return found == named_.end() ? nullptr : found->second;
}

std::string Tunings::lastingName() const
{
    const TuningDocument* document = current();
    return document == nullptr || document->original().empty() ? name_ : document->original();
}

std::vector<std::string> Tunings::names() const
{
    std::vector<std::string> names;
    for (const auto& document : documents_)
        names.push_back(document->name());
    const std::vector<std::string> adaptive = TuningDocument::adaptiveNames();
    for (const std::string& name : adaptive)
        if (!named_.contains(name))
            names.push_back(name);
    std::ranges::stable_sort(names, {}, [&](const std::string& name) {
        const auto found = std::ranges::find(adaptive, name);
        return found == adaptive.end() ? 0 : 1 + (found - adaptive.begin());
    });
    return names;
}

std::string Tunings::getDescription(const std::string& name) const
{
    const auto found = named_.find(name);
    return found == named_.end() ? std::string() : found->second->description();
}

bool Tunings::select(const std::string& name)
{
    const bool isNew = !named_.contains(name) && TuningDocument::isBuiltin(name);
    if (isNew)
        add(TuningDocument::makeBuiltin(name, adaptive_));
    const auto found = named_.find(name);
    if (found != named_.end())
        play(*found->second);
    const bool hasInstrument = player_.with([](const Instrument&, const Temperament&) {});
    if (found == named_.end() || !hasInstrument)
        logger("app").debug("Tuning or instrument not found '{}'", name);
    if (found == named_.end()) {
        logger("app").warn("there is no tuning named \"{}\"", name);
        return false;
    }
    // The name may come from a list that is now filled again.
    if (isNew)
        emit listed();
    emit changed();
    return true;
}

void Tunings::setTransposition(const Transposition& transposition)
{
    if (transposition == transposition_)
        return;
    transposition_ = transposition;
    if (const auto found = named_.find(name_); found != named_.end())
        play(*found->second);
    emit changed();
}

void Tunings::setAdaptive(const AdaptiveSettings& settings)
{
    if (settings == adaptive_)
        return;
    adaptive_ = settings;
    for (const std::string& name : names()) {
        const auto found = named_.find(name);
        if (found != named_.end() &&
            dynamic_cast<const FollowingMeantone*>(&found->second->temperament()) != nullptr)
            replace(TuningDocument::makeBuiltin(name, settings));
    }
}

void Tunings::play(const TuningDocument& document)
{
    // A fresh copy begins at home: see docs/decisions.md, 17.
    auto temperament =
        std::make_unique<TransposedTemperament>(document.temperament().fresh(), transposition_);
    player_.setTemperament(*temperament);
    played_ = std::move(temperament);
    name_ = document.name();
}

} // namespace velmora
