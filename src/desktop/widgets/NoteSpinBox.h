#pragma once

#include <QSpinBox>

namespace velmora {

/// Edits a MIDI key: shows it as "A0 (21)" and accepts a note name or a number.
class NoteSpinBox : public QSpinBox {
    Q_OBJECT

public:
    explicit NoteSpinBox(QWidget* parent = nullptr);

protected:
    QString textFromValue(int key) const override;
    int valueFromText(const QString& text) const override;
    QValidator::State validate(QString& text, int& position) const override;
    void fixup(QString& text) const override;
};

} // namespace velmora
