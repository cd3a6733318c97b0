#pragma once
#include <QMainWindow>
class PreferencesWindow : public QMainWindow {
    Q_OBJECT
signals:
    void changed();
    void bankChanged();
};
