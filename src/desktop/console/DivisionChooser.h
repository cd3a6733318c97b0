#pragma once

#include <QWidget>

class QComboBox;

namespace velmora {

class AppDelegate;

/// Chooses which division of an organ the keyboard on the screen and the letter keys play. Hidden
/// while there is nothing to choose.
class DivisionChooser : public QWidget {
    Q_OBJECT

public:
    explicit DivisionChooser(AppDelegate& application);

private:
    void showDivisions();

    AppDelegate& application_;
    QComboBox* box_;
};

} // namespace velmora
