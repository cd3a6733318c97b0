#pragma once

#include "app/tuningCorrections.h"

#include <QObject>

#include <atomic>
#include <future>
#include <optional>

namespace velmora {

/// Brings the programs of SoundFonts into tune while they are played live. When a program is
/// selected, it is measured in the background and corrected from the next note on. Main thread
/// only.
class TuningCorrector : public QObject {
    Q_OBJECT

public:
    /// The application must outlive this object.
    explicit TuningCorrector(AppDelegate& application);
    ~TuningCorrector() override;

    /// Looks which program is selected and whether it is to be corrected.
    void update();

signals:
    /// The thread that measures has finished.
    void measured();

private:
    std::optional<BankProgram> selected() const;
    void take();
    void correct(const KeyCorrections& corrections);

    AppDelegate& application_;
    BankProgram program_; ///< That of `measuring_`.
    std::atomic<bool> isCancelled_{false};
    std::future<std::optional<KeyCorrections>> measuring_;
};

} // namespace velmora
