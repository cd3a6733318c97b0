#pragma once

#include <QWidget>

class QCheckBox;
class QComboBox;
class QFormLayout;

namespace velmora {

/// The pane of the preferences for the colours of the keyboard and the piano roll. Each change is
/// stored at once.
class ColorsPane : public QWidget {
    Q_OBJECT

public:
    ColorsPane();

    /// Shows the current preferences.
    void read() const;

signals:
    void changed();

private:
    void addColor(QFormLayout& form, const QString& label, const char* key, const QString& help);
    void reset();

    QComboBox* scheme_;
    QCheckBox* motion_;
};

} // namespace velmora
