#pragma once

#include <QObject>

class QComboBox;
class QFormLayout;
class QLabel;

namespace velmora {

/// The rows of a form in which the user chooses the language of the program and the names of notes.
class LanguageFields : public QObject {
    Q_OBJECT

public:
    /// Adds the rows to a form, which owns their widgets and this object.
    explicit LanguageFields(QFormLayout& form);

    /// Shows the current preferences.
    void read();

signals:
    /// Notes have other names now. A new language takes effect at the next start.
    void noteNamesChanged();

private:
    QComboBox* language_;
    QComboBox* noteNames_;
    QLabel* restart_;
};

} // namespace velmora
