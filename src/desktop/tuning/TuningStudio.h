#pragma once

#include "app/TuningMoment.h"

#include <QWidget>

#include <filesystem>

class QTabWidget;

namespace velmora {

class AppDelegate;
class CircleView;
class NowTab;
class TuningReader;
class TuningShaper;

/// Shows the current tuning and lets it be shaped: its circle of fifths, its notes, and what sounds
/// now.
class TuningStudio : public QWidget {
    Q_OBJECT

public:
    explicit TuningStudio(AppDelegate& application, QWidget* parent = nullptr);

    /// Writes the current tuning to a file, as `TuningShaper::save` does.
    void save(const std::filesystem::path& path, const QString& description) const;

signals:
    /// The user wants to save the tuning with a description.
    void saveRequested(const QString& description);

    /// The keys are to be lit by these purities; all `None` for as usual.
    void keysRated(const std::array<Purity, kKeys>& purities);

private:
    void rateKeys();
    void connectDragging(const CircleView& circle);

    AppDelegate& application_;
    TuningShaper* shaper_;

    TuningReader* reader_;
    NowTab* now_;
    QTabWidget* tabs_;
    std::array<Purity, kKeys> rated_{};
    double dragStart_ = 0.0; ///< Where the dragged note was, in cents above the first one.
};

} // namespace velmora
