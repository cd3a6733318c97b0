#pragma once

#include "tuning/TransposedTemperament.h"
#include "tuning/TuningDocument.h"

#include <QObject>

#include <filesystem>
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace velmora {

class Player;

/// The tunings to choose from, the one that is played, and where it stands. Main thread only.
class Tunings : public QObject {
    Q_OBJECT

public:
    /// There is no tuning yet. The player must outlive this object.
    explicit Tunings(Player& player);

    /// Lists "Equal", which becomes the current tuning, and "Quartercomma Meantone".
    void addBuiltins();

    /// Adds a tuning to the list. From now on its name selects it, even if an earlier tuning has
    /// the same name.
    void put(std::unique_ptr<TuningDocument> document);

    /// Puts a tuning in the place of the one that its name selects, or lists it. Plays it at once
    /// if the current tuning has that name.
    void replace(std::unique_ptr<TuningDocument> document);

    /// Plays the current tuning on the keys of a keyboard mapping file; an empty path stands for
    /// none. Returns an empty string, or a sentence that says why the keys stay as they are.
    std::string setMapping(const std::filesystem::path& file);

    /// Plays a tuning that need not be listed; null plays the current one again. So does whatever
    /// changes the current tuning, its root or its pitch. The document may be destroyed.
    void preview(const TuningDocument* document);

    /// The document of the current tuning; null before there is one.
    const TuningDocument* current() const;

    /// All listed tunings in the order in which they were added.
    const std::vector<std::unique_ptr<TuningDocument>>& documents() const { return documents_; }

    /// The names of all listed tunings in the order in which they were added, and then those of the
    /// adaptive ones, used or not. A name that was added twice appears twice.
    std::vector<std::string> names() const;

    /// Returns what the tuning of that name says about itself; empty if it says nothing.
    std::string getDescription(const std::string& name) const;

    /// Makes the tuning of that name the current one and retunes the instrument, including sounding
    /// keys. An adaptive or historical tuning is created and listed when it is first selected.
    /// Returns false, and keeps the current one, if there is no tuning of that name.
    bool select(const std::string& name);

    /// The name of the current tuning.
    const std::string& name() const { return name_; }

    /// The name by which a session can find the current tuning: that of the original of an edited
    /// copy, which only its own file would keep.
    std::string lastingName() const;

    /// The root and the pitch of the current tuning and of those that are selected later.
    const Transposition& transposition() const { return transposition_; }
    void setTransposition(const Transposition& transposition);

    /// The current temperament before it was transposed; null before there is one. Its state
    /// changes as keys are played: look at that under the player's lock.
    const Temperament* untransposed() const { return played_ ? &played_->inner() : nullptr; }

    /// Returns a copy of the current temperament, with its root and its pitch, in its initial
    /// state; null before there is one.
    std::unique_ptr<Temperament> fresh() const { return played_ ? played_->fresh() : nullptr; }

    /// Chooses how the temperaments that follow the music do so. The current one begins at home
    /// again if that changes it.
    void setAdaptive(const AdaptiveSettings& settings);

signals:
    /// A tuning was listed.
    void listed();

    /// Another tuning, another root or another pitch is the current one.
    void changed();

private:
    void add(std::unique_ptr<TuningDocument> document);
    void play(const TuningDocument& document);

    Player& player_;
    /// Every tuning ever listed, including those whose name now selects a later one.
    std::vector<std::unique_ptr<TuningDocument>> documents_;
    std::map<std::string, TuningDocument*> named_;
    std::string name_;
    Transposition transposition_;
    AdaptiveSettings adaptive_;
    std::unique_ptr<TransposedTemperament> played_; ///< A fresh copy of the current tuning's.
};

} // namespace velmora
