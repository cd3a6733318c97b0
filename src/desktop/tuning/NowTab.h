#pragma once

#include "desktop/tuning/HeldMoment.h"

#include <QWidget>

class QCheckBox;
class QLabel;
class QTableWidget;

namespace velmora {

class TuningReader;

/// Tells why it sounds so: the chord that sounds and its intervals, and how an adaptive temperament
/// has spelled it.
class NowTab : public QWidget {
    Q_OBJECT

public:
    explicit NowTab(TuningReader& reader);

    /// Checked while keys are lit in the colours of their purity.
    QCheckBox& lightsKeys() { return *lightsKeys_; }

private:
    void take();
    void showMoment();
    QString reasons(const std::array<std::string, 12>& names) const;

    TuningReader& reader_;
    HeldMoment held_;
    TuningMoment shown_;
    QLabel *chord_, *keys_, *reasons_;
    QTableWidget* intervals_;
    QCheckBox* lightsKeys_;
};

} // namespace velmora
