#include "desktop/widgets/NoteSpinBox.h"

#include "tuning/keyName.h"

#include <algorithm>
#include <optional>

namespace velmora {

namespace {

QString nameOf(int key)
{
    return QString::fromStdString(noteName(static_cast<unsigned>(key)));
}

QString shown(int key)
{
    return QString("%1 (%2)").arg(nameOf(key)).arg(key);
}

/// The key that a text names. A number is returned even if it is outside 0…127.
std::optional<int> keyOf(const QString& text)
{
    const QString typed = text.trimmed();
    bool isNumber = false;
    const int number = typed.toInt(&isNumber);
    if (isNumber)
        return number;
    for (int key = 0; key < 128; ++key) {
        for (const QString& name : {nameOf(key), shown(key)}) {
            if (typed.compare(name, Qt::CaseInsensitive) == 0)
                return key;
        }
    }
    return std::nullopt;
}

} // namespace

NoteSpinBox::NoteSpinBox(QWidget* parent) : QSpinBox(parent)
{
    setRange(0, 127);
}

QString NoteSpinBox::textFromValue(int key) const
{
    return shown(key);
}

int NoteSpinBox::valueFromText(const QString& text) const
{
    return keyOf(text).value_or(value());
}

QValidator::State NoteSpinBox::validate(QString& text, int& /*position*/) const
{
    const std::optional<int> key = keyOf(text);
    const bool isAllowed = key && *key >= minimum() && *key <= maximum();
    return isAllowed ? QValidator::Acceptable : QValidator::Intermediate;
}

void NoteSpinBox::fixup(QString& text) const
{
    if (const std::optional<int> key = keyOf(text))
        text = shown(std::clamp(*key, minimum(), maximum()));
}

} // namespace velmora
