#pragma once

#include <QWidget>

class QComboBox;
class QDoubleSpinBox;
class QMenu;

namespace velmora {

class Tunings;

/// Chooses the root on which the tunings stand and the pitch of A.
class TranspositionBar : public QWidget {
    Q_OBJECT

public:
    explicit TranspositionBar(Tunings& tunings);

private:
    void show();
    void fillMenu(QMenu& menu);

    Tunings& tunings_;
    QComboBox* root_;
    QDoubleSpinBox* a_;
};

} // namespace velmora
