#include "desktop/roll/LyricsPanel.h"

#include "midi/MidiFileEvents.h"
#include "sequencer/SequenceDocument.h"
#include "sequencer/SourceFile.h"

#include <QEvent>
#include <QLabel>
#include <QVBoxLayout>

namespace velmora {

namespace {

constexpr int kSideMargin = 6;
constexpr double kLarger = 1.4; // than the other texts

QString plainText(const LyricLine& line)
{
    std::string text;
    for (const Syllable& syllable : line)
        text += syllable.text;
    return QString::fromStdString(text).trimmed();
}

} // namespace

LyricsPanel::LyricsPanel(const SequenceDocument& document, QWidget* parent)
    : QWidget(parent), document_(document), current_(new QLabel), next_(new QLabel)
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(kSideMargin, 2, kSideMargin, 2);
    layout->setSpacing(0);
    current_->setTextFormat(Qt::RichText);
    next_->setTextFormat(Qt::PlainText);
    next_->setForegroundRole(QPalette::PlaceholderText);
    setAccessibleName(tr("Lyrics"));
    for (QLabel* label : {current_, next_}) {
        QFont large = label->font();
        large.setPointSizeF(large.pointSizeF() * kLarger);
        label->setFont(large);
        label->setAlignment(Qt::AlignCenter);
        // A long line must not widen the window.
        label->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
        layout->addWidget(label);
    }
    connect(&document_.transport(), &Transport::frame, this, &LyricsPanel::showPlace);
    connect(&document_.transport(), &Transport::moved, this, &LyricsPanel::showPlace);
    readLyrics();
}

void LyricsPanel::readLyrics()
{
    lines_.clear();
    shown_.reset();
    if (const SourceFile* source = document_.source();
        source != nullptr && !source->bytes().empty())
        lines_ = lyricsOf(readMidiFileEvents(source->bytes()));
    setHidden(lines_.empty());
    showPlace();
}

void LyricsPanel::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() != QEvent::PaletteChange)
        return;
    shown_.reset();
    showPlace();
}

void LyricsPanel::showPlace()
{
    if (lines_.empty())
        return;
    const LyricPlace place = lyricPlaceAt(lines_, document_.transport().position());
    if (shown_ == place)
        return;
    shown_ = place;
    current_->setText(markedText(place));
    next_->setText(place.line + 1 < lines_.size() ? plainText(lines_[place.line + 1]) : QString());
}

QString LyricsPanel::markedText(const LyricPlace& place) const
{
    const LyricLine& line = lines_[place.line];
    QString text;
    for (std::size_t i = 0; i < line.size(); ++i) {
        const QString syllable = QString::fromStdString(line[i].text).toHtmlEscaped();
        text += place.syllable == i
                    ? QString("<span style=\"background-color: %1; color: %2\">%3</span>")
                          .arg(palette().color(QPalette::Highlight).name(),
                               palette().color(QPalette::HighlightedText).name(), syllable)
                    : syllable;
    }
    return text;
}

} // namespace velmora
