#pragma once

#include <QWidget>

class QCheckBox;
class QSpinBox;

namespace velmora {

class PlayingOptions;

/// Chooses how notes that sound take over another pitch.
class GlideBar : public QWidget {
    Q_OBJECT

public:
    explicit GlideBar(PlayingOptions& options);

private:
    void show();

    PlayingOptions& options_;
    QSpinBox* time_;
    QCheckBox* newOnly_;
};

} // namespace velmora
