#include "desktop/widgets/SearchField.h"

#include "desktop/widgets/icons.h"
#include "desktop/widgets/nameParts.h"

#include <QKeyEvent>

#include <algorithm>

namespace velmora {

SearchField::SearchField(const QString& hint, QWidget* parent) : QLineEdit(parent)
{
    setPlaceholderText(hint);
    setAccessibleName(hint);
    setToolTip(tr("%1 (%2)").arg(
        hint, QKeySequence(QKeySequence::Find).toString(QKeySequence::NativeText)));
    setClearButtonEnabled(true);
    addAction(icon("find"), LeadingPosition)->setText(hint);
    nameParts(*this);
}

bool SearchField::finds(const QString& text) const
{
    const QStringList words = this->text().split(' ', Qt::SkipEmptyParts);
    return std::ranges::all_of(
        words, [&](const QString& word) { return text.contains(word, Qt::CaseInsensitive); });
}

bool SearchField::begins(const QString& text) const
{
    return text.startsWith(this->text().trimmed(), Qt::CaseInsensitive);
}

void SearchField::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Down)
        emit left();
    else if (event->key() == Qt::Key_Escape && !text().isEmpty())
        clear();
    else
        QLineEdit::keyPressEvent(event);
}

} // namespace velmora
