#include "desktop/widgets/NoteSpinBox.h"

#include "desktop/widgets/noteNames.h"
#include "tuning/keyName.h"

#include <QLineEdit>

#include <algorithm>
#include <optional>

namespace velmora {

namespace {

QString shown(int key)
{
    return QString("%1 (%2)").arg(noteText(static_cast<unsigned>(key))).arg(key);
}

/// Returns a name with the accidentals of a computer keyboard.
QString typeable(QString name)
{
    return name.replace(QChar(0x266F), '#').replace(QChar(0x266D), 'b');
}

/// The key that a text names, in the naming that is shown or else in the international one. A
/// number is returned even if it is outside 0…127.
std::optional<int> keyOf(const QString& text)
{
    const QString typed = text.trimmed();
    bool isNumber = false;
    const int number = typed.toInt(&isNumber);
    if (isNumber)
        return number;
    const auto find = [name = typeable(typed)](auto nameOf) -> std::optional<int> {
        for (unsigned key = 0; key < 128; ++key)
            if (name.compare(typeable(nameOf(key)), Qt::CaseInsensitive) == 0)
                return static_cast<int>(key);
        return std::nullopt;
    };
    const auto whole = find([](unsigned key) { return shown(static_cast<int>(key)); });
    const auto named = whole ? whole : find(noteText);
    return named ? named : find([](unsigned key) { return QString::fromStdString(noteName(key)); });
}

} // namespace

NoteSpinBox::NoteSpinBox(QWidget* parent) : QSpinBox(parent)
{
    setRange(0, 127);
}

void NoteSpinBox::showName()
{
    lineEdit()->setText(shown(value()));
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
