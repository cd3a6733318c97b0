#pragma once

#include "app/tuningCorrections.h"

#include <QObject>

#include <atomic>
#include <future>
#include <optional>
#include <vector>

namespace velmora {

/// Brings the programs of SoundFonts into tune while they are played live. Each program that is
/// selected, or that a voice of a piece plays, is measured in the background and corrected from the
/// next note on. Main thread only.
class TuningCorrector : public QObject {
    Q_OBJECT

public:
    /// The application must outlive this object.
    explicit TuningCorrector(AppDelegate& application);
    ~TuningCorrector() override;

    /// Looks which programs are played and whether they are to be corrected.
    void update();

signals:
    /// The thread that measures has finished.
    void measured();

private:
    std::vector<PitchedProgram> played() const;
    void take();
    void correct(const PitchedProgram& program, const KeyCorrections& corrections);

    AppDelegate& application_;
    PitchedProgram program_;           ///< That of `measuring_`.
    std::vector<PitchedProgram> done_; ///< Those that are played as well as they can be.
    std::atomic<bool> isCancelled_{false};
    std::future<std::optional<KeyCorrections>> measuring_;
};

} // namespace velmora
