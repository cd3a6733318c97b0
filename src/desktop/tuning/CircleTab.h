#pragma once

#include "desktop/tuning/Circle.h"

#include <QWidget>

class QComboBox;
class QStackedWidget;
class QTableWidget;

namespace velmora {

class CircleView;
class TuningReader;

/// Shows the fifths and thirds of the current temperament as a circle or as a table.
class CircleTab : public QWidget {
    Q_OBJECT

public:
    explicit CircleTab(TuningReader& reader);

    CircleView& view() { return *view_; }

private:
    void showCircle();
    void fillTable();

    TuningReader& reader_;
    CircleView* view_;
    QTableWidget *fifths_, *degrees_; ///< The tables of both kinds of circle.
    QStackedWidget* pages_;
    QComboBox* octave_;  ///< In which the beats are counted.
    QComboBox* numbers_; ///< What to show: cents, beats or the table.
};

} // namespace velmora
