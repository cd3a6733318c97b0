#pragma once

#include <QSpinBox>

namespace velmora {

/// Edits a MIDI key: shows it as "A0 (21)" and accepts a note name or a number. Names are those of
/// `noteText`; the international ones are accepted, too.
class NoteSpinBox : public QSpinBox {
    Q_OBJECT

public:
    explicit NoteSpinBox(QWidget* parent = nullptr);

    /// Shows the key's name again, after the names of notes have changed.
    void showName();

protected:
    QString textFromValue(int key) const override;
    int valueFromText(const QString& text) const override;
    QValidator::State validate(QString& text, int& position) const override;
    void fixup(QString& text) const override;
};

} // namespace velmora
