#include "desktop/tuning/TuningShaper.h"

#include "app/Tunings.h"
#include "platform/writeFile.h"
#include "tuning/MappingFile.h"
#include "tuning/ScaleFile.h"

#include <QUndoCommand>

#include <algorithm>
#include <utility>

namespace velmora {

/// A change of the pitches of a scale.
class ShapeCommand : public QUndoCommand {
public:
    ShapeCommand(TuningShaper& shaper, std::vector<ScalePitch> after)
        : QUndoCommand(TuningShaper::tr("Shape the Tuning")), shaper_(shaper),
          gesture_(shaper.gesture_), before_(shaper.shape_->scale.pitches), after_(std::move(after))
    {
    }

    void undo() override { shaper_.play(before_); }
    void redo() override { shaper_.play(after_); }
    int id() const override { return 1; }
    bool mergeWith(const QUndoCommand* other) override
    {
        const auto& next = static_cast<const ShapeCommand&>(*other);
        if (next.gesture_ != gesture_)
            return false;
        after_ = next.after_;
        return true;
    }

private:
    TuningShaper& shaper_;
    int gesture_;
    std::vector<ScalePitch> before_, after_;
};

TuningShaper::TuningShaper(Tunings& tunings) : tunings_(tunings)
{
    connect(&tunings_, &Tunings::changed, this, &TuningShaper::takeCurrent);
    takeCurrent();
}

void TuningShaper::takeCurrent()
{
    hearsOriginal_ = false;
    if (tunings_.name() != std::exchange(name_, tunings_.name()))
        undo_.clear();
    const Temperament* temperament = tunings_.untransposed();
    shape_ = temperament == nullptr ? std::nullopt : shapeOf(*temperament);
    emit changed();
}

void TuningShaper::setCents(std::size_t degree, double cents)
{
    if (degree == 0 || degree >= notes())
        return;
    std::vector<ScalePitch> pitches = shape_->scale.pitches;
    pitches[degree - 1] = Cent(cents);
    undo_.push(new ShapeCommand(*this, std::move(pitches)));
}

void TuningShaper::setPitches(const std::vector<ScalePitch>& pitches)
{
    if (shape_ && pitches.size() == notes())
        undo_.push(new ShapeCommand(*this, pitches));
}

void TuningShaper::play(const std::vector<ScalePitch>& pitches)
{
    shape_->scale.pitches = pitches;
    const TuningDocument& current = *tunings_.current();
    name_ = current.original().empty() ? freeName(current.name()) : current.name();
    const std::string name = name_; // the same as before, so that the history goes on
    tunings_.replace(TuningDocument::makeEdited(current, *shape_, name));
    if (tunings_.name() != name)
        tunings_.select(name);
}

std::string TuningShaper::freeName(const std::string& original) const
{
    const auto names = tunings_.names();
    const QString title = QString::fromStdString(original);
    std::string name = tr("%1 (edited)").arg(title).toStdString();
    for (int number = 2; std::ranges::find(names, name) != names.end(); ++number)
        name = tr("%1 (edited, %2)").arg(title).arg(number).toStdString();
    return name;
}

const TuningDocument* TuningShaper::original() const
{
    const TuningDocument* current = tunings_.current();
    if (current == nullptr || current->original().empty())
        return nullptr;
    for (const auto& document : tunings_.documents())
        if (document->name() == current->original())
            return document.get();
    return nullptr;
}

void TuningShaper::hearOriginal(bool on)
{
    const TuningDocument* document = original();
    if (document == nullptr || on == hearsOriginal_)
        return;
    tunings_.preview(on ? document : nullptr);
    hearsOriginal_ = on;
    emit changed();
}

void TuningShaper::save(const std::filesystem::path& path, const std::string& description) const
{
    Scale scale = shape_->scale;
    scale.description = description;
    writeFile(path, writeScale(scale));
    if (shape_->mapping != KeyMapping{}) {
        std::filesystem::path beside = path;
        writeFile(beside.replace_extension(".kbm"), writeMapping(shape_->mapping, notes()));
    }
}

} // namespace velmora
