// Measures how well temperaments fit music whose notated spelling is known:
//
//     zcat MUSIC.tsv.gz | bench_spelling [even|odd] [memory=S] [held=NOTES] [anchor=PLACE]
//         [weight=NOTES]
//
// Each line of the music has the name of a piece, the start and end of a note in seconds, its MIDI
// key, and its place on the chain of fifths. "even" and "odd" take every other piece.
#include "tuning/DynamicTemperament.h"
#include "tuning/PureTemperament.h"
#include "tuning/Tunable.h"

#include <fmt/format.h>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdlib>
#include <functional>
#include <iostream>
#include <map>
#include <sstream>
#include <string>
#include <vector>

namespace velmora {

namespace {

struct Note {
    double start, end;
    unsigned char key;
    int place;
};

using Piece = std::vector<Note>;

/// An instrument that does nothing.
class Silent : public Tunable {
    void play(int, float) override {}
    void tune(const Temperament&, int, int) override {}
};

/// A sum of distances from pure intervals, weighted by the time that they sound.
struct Errors {
    double seconds = 0.0, cents = 0.0, wolfSeconds = 0.0;

    void add(double time, double distance)
    {
        constexpr double kWolf = 20.0;
        seconds += time;
        cents += time * distance;
        wolfSeconds += distance > kWolf ? time : 0.0;
    }
};

/// The mean and the mean square of the drift, weighted by the time.
struct Drifting {
    double seconds = 0.0, sum = 0.0, squares = 0.0;

    void add(double time, double cents)
    {
        seconds += time;
        sum += time * cents;
        squares += time * cents * cents;
    }

    double deviation() const
    {
        const double mean = sum / seconds;
        return std::sqrt(std::max(squares / seconds - mean * mean, 0.0));
    }
};

struct Score {
    Errors thirds; ///< And sixths.
    Errors fifths; ///< And fourths.
    Drifting drift;
    std::size_t notes = 0, asNotated = 0;
    double playingSeconds = 0.0; ///< The time that the temperament itself took.
};

/// Returns the place of a key on the chain of fifths, if it has one in meantone.
int placeOf(const Temperament& temperament, unsigned long key)
{
    if (const auto place = temperament.place(key))
        return *place;
    const double cents = temperament.getTuning(key).cent();
    for (int place = -meantone::kFarthest; place <= meantone::kFarthest; ++place)
        if (std::abs(std::remainder(place * meantone::kFifth - cents, 1200.0)) < 1.0)
            return place;
    return meantone::kFarthest + 1;
}

/// Adds the intervals between notes that sound for a time. Only those count that are notated as
/// thirds, sixths, fifths or fourths.
void addIntervals(const std::vector<const Note*>& sounding, const Temperament& temperament,
                  double seconds, Score& score)
{
    constexpr double kMajorSixth = 884.358713, kMajorThird = 386.313714, kFifth = 701.955001;
    for (const Note* low : sounding) {
        for (const Note* high : sounding) {
            if (high->key <= low->key)
                continue;
            const int places = high->place - low->place;
            const double cents = 1200.0 * std::log2(temperament.getPitch(high->key) /
                                                    temperament.getPitch(low->key));
            const auto distance = [&](double pure) { // of the interval that goes up the chain
                return std::abs(std::remainder(cents - (places > 0 ? pure : -pure), 1200.0));
            };
            if (std::abs(places) == 4)
                score.thirds.add(seconds, distance(kMajorThird));
            else if (std::abs(places) == 3)
                score.thirds.add(seconds, distance(kMajorSixth));
            else if (std::abs(places) == 1)
                score.fifths.add(seconds, distance(kFifth));
        }
    }
}

/// Plays a piece in a temperament.
void play(const Piece& piece, Temperament& temperament, Score& score)
{
    struct Event {
        double time;
        bool isStart;
        const Note* note;
    };
    std::vector<Event> events;
    for (const Note& note : piece) {
        events.push_back({note.start, true, &note});
        events.push_back({note.end, false, &note});
    }
    std::ranges::stable_sort(events, [](const Event& one, const Event& other) {
        return std::pair(one.time, one.isStart) < std::pair(other.time, other.isStart);
    });
    Silent instrument;
    std::vector<const Note*> sounding;
    double last = 0.0;
    for (const Event& event : events) {
        const auto [time, isStart] = std::pair(event.time, event.isStart);
        const Note* note = event.note;
        if (time > last)
            addIntervals(sounding, temperament, time - last, score);
        if (time > last && !sounding.empty())
            score.drift.add(time - last, temperament.drift());
        last = time;
        const bool sounds = std::ranges::any_of(
            sounding, [&](const Note* one) { return one != note && one->key == note->key; });
        if (!isStart) {
            ++score.notes;
            score.asNotated += placeOf(temperament, note->key) == note->place;
            std::erase(sounding, note);
        } else {
            sounding.push_back(note);
        }
        const auto begin = std::chrono::steady_clock::now();
        temperament.setTime(time);
        if (isStart)
            temperament.setup(instrument, note->key, 1.0F);
        else if (!sounds)
            temperament.release(note->key);
        score.playingSeconds +=
            std::chrono::duration<double>(std::chrono::steady_clock::now() - begin).count();
    }
}

std::map<std::string, Piece> readMusic(std::istream& input)
{
    std::map<std::string, Piece> pieces;
    for (std::string line; std::getline(input, line);) {
        std::istringstream fields(line);
        std::string name;
        Note note{};
        int key = 0;
        if (line.starts_with('#') ||
            !(fields >> name >> note.start >> note.end >> key >> note.place))
            continue;
        note.key = static_cast<unsigned char>(key);
        pieces[name].push_back(note);
    }
    return pieces;
}

void report(const std::string& name, const std::vector<Piece>& pieces,
            const std::function<std::unique_ptr<Temperament>()>& make)
{
    Score score;
    for (const Piece& piece : pieces)
        play(piece, *make(), score);
    const double events = 2.0 * static_cast<double>(score.notes);
    fmt::print(
        "{:<26} thirds and sixths {:5.2f} cents off, {:5.2f} % wolves   fifths {:5.2f} cents off   "
        "as notated {:5.2f} %   drift ±{:.2f} cents   {:4.0f} ns a key\n",
        name, score.thirds.cents / score.thirds.seconds,
        100.0 * score.thirds.wolfSeconds / score.thirds.seconds,
        score.fifths.cents / score.fifths.seconds,
        100.0 * static_cast<double>(score.asNotated) / static_cast<double>(score.notes),
        score.drift.deviation(), 1e9 * score.playingSeconds / events);
}

} // namespace

} // namespace velmora

int main(int argc, char** argv)
{
    using namespace velmora;
    SpellingFollower::Settings settings;
    int half = -1;
    for (int i = 1; i < argc; ++i) {
        const std::string argument = argv[i];
        const double value = std::atof(argument.substr(argument.find('=') + 1).c_str());
        if (argument == "even" || argument == "odd")
            half = argument == "odd" ? 1 : 0;
        else if (argument.starts_with("memory="))
            settings.memory = value;
        else if (argument.starts_with("held="))
            settings.held = value;
        else if (argument.starts_with("anchor="))
            settings.anchor = value;
        else if (argument.starts_with("weight="))
            settings.anchorWeight = value;
    }
    std::vector<Piece> pieces;
    int number = 0;
    for (auto& [name, piece] : readMusic(std::cin))
        if (half < 0 || number++ % 2 == half)
            pieces.push_back(std::move(piece));
    fmt::print("{} pieces\n", pieces.size());
    const auto following = [&](double correction) {
        return [settings, correction] {
            SpellingFollower::Settings chosen = settings;
            chosen.correction = correction;
            return std::make_unique<FollowingMeantone>(chosen);
        };
    };
    report("Equal", pieces, [] { return Temperament::Equal().fresh(); });
    report("Quartercomma Meantone", pieces, [] { return Temperament::Meantone().fresh(); });
    report("Dynamic", pieces, [] { return std::make_unique<DynamicTemperament>(); });
    report("Following Meantone", pieces, following(0.0));
    report("Following Meantone, 40 ms", pieces, following(0.04));
    report("Pure", pieces, [] { return std::make_unique<PureTemperament>(); });
    report("Pure, free", pieces, [] { return std::make_unique<PureTemperament>(Drift::Free); });
}
