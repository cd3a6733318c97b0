#pragma once

#include "tuning/TuningShape.h"

#include <QWidget>

#include <array>

class QComboBox;
class QLabel;
class QSpinBox;

namespace velmora {

class TuningShaper;

/// Shapes a tuning of twelve notes by its fifths: by how many parts of a comma each is narrowed.
/// One of them takes the rest.
class FifthsEditor : public QWidget {
    Q_OBJECT

public:
    /// The shaper must outlive the editor.
    explicit FifthsEditor(TuningShaper& shaper);

    /// Shows the fifths of the current shape.
    void showShape();

private:
    void makeFields();
    void showParts();
    void apply();
    /// Fills the fields in with the fifths of a scale. Returns false if it is not made of such.
    bool findFifths(const Scale& scale);
    HistoricalTemperament::Fifths fifths() const;

    TuningShaper& shaper_;
    QComboBox *comma_, *rest_;
    QSpinBox* parts_;
    std::array<QSpinBox*, 12> narrowed_{};
    QLabel* state_;
};

} // namespace velmora
