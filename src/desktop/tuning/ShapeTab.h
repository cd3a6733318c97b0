#pragma once

#include <QWidget>

#include <string>
#include <vector>

class QDoubleSpinBox;
class QGridLayout;
class QLabel;
class QLineEdit;
class QPushButton;
class QSlider;

namespace velmora {

class FifthsEditor;
class TuningShaper;

/// Shapes the current tuning: each note by a slider and a number, or all fifths by parts of a
/// comma.
class ShapeTab : public QWidget {
    Q_OBJECT

public:
    /// The shaper must outlive the tab.
    explicit ShapeTab(TuningShaper& shaper);

signals:
    /// The user wants to save the tuning with a description.
    void saveRequested(const QString& description);

private:
    /// The controls of a degree.
    struct Row {
        QLabel* name;
        QSlider* slider;
        QDoubleSpinBox* cents;
        double middle; ///< Of the slider, in cents above the first note.
    };

    void makeTools();
    void makeRows();
    void showShape();
    void showRow(std::size_t degree);
    QString nameOf(std::size_t degree) const;

    TuningShaper& shaper_;
    QLabel* state_;
    QWidget *pages_, *tools_;
    QGridLayout* grid_;
    FifthsEditor* fifths_;
    QPushButton *compare_, *save_;
    QLineEdit* description_;
    std::vector<Row> rows_; ///< From degree 1 on.
    std::string rowsOf_;    ///< The tuning for which they were made.
};

} // namespace velmora
