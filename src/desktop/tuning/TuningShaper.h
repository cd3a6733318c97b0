#pragma once

#include "tuning/TuningShape.h"

#include <QObject>
#include <QUndoStack>

#include <filesystem>
#include <optional>
#include <string>

namespace velmora {

class TuningDocument;
class Tunings;

/// Changes the current tuning in a copy of its own, which is heard at once. Each change can be
/// undone.
class TuningShaper : public QObject {
    Q_OBJECT

public:
    /// The tunings must outlive the shaper.
    explicit TuningShaper(Tunings& tunings);

    /// The current tuning as it is heard; empty if it cannot be shaped.
    const std::optional<TuningShape>& shape() const { return shape_; }

    /// The name of the current tuning.
    const std::string& name() const { return name_; }

    /// The number of notes before the scale repeats.
    std::size_t notes() const { return shape_ ? shape_->scale.pitches.size() : 0; }

    /// Begins a change. All changes of the scale until the next begins are undone together.
    void begin() { ++gesture_; }

    /// Moves a degree, from 1 on, to so many cents above the first note. The period stays.
    void setCents(std::size_t degree, double cents);

    /// Takes the pitches of another scale with as many notes.
    void setPitches(const std::vector<ScalePitch>& pitches);

    /// Plays the tuning as it was before it was changed, or the changed one again.
    void hearOriginal(bool on);
    bool hearsOriginal() const { return hearsOriginal_; }

    /// The original of the tuning if that was changed; otherwise null.
    const TuningDocument* original() const;

    QUndoStack& undoStack() { return undo_; }

    /// Writes the scale with a description to a file and, if its keys or its pitch need that, a
    /// keyboard mapping beside it. Throws std::runtime_error if that fails.
    void save(const std::filesystem::path& path, const std::string& description) const;

signals:
    /// Another tuning, or another shape of the tuning, is heard.
    void changed();

private:
    friend class ShapeCommand;

    void takeCurrent();
    void play(const std::vector<ScalePitch>& pitches);

    /// Returns the name of a new copy of a tuning.
    std::string freeName(const std::string& original) const;

    Tunings& tunings_;
    std::optional<TuningShape> shape_;
    std::string name_; ///< Of the tuning that the shape belongs to.
    QUndoStack undo_;
    int gesture_ = 0;
    bool hearsOriginal_ = false;
};

} // namespace velmora
