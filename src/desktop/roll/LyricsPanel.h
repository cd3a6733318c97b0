#pragma once

#include "sequencer/Lyrics.h"

#include <QWidget>

class QLabel;

namespace velmora {

class SequenceDocument;

/// Two lines of the sung text below the roll: the one at the play position, with the syllable that
/// is sung, and the one that follows. Hidden while the piece has no text.
class LyricsPanel : public QWidget {
    Q_OBJECT

public:
    /// The document must outlive the panel.
    explicit LyricsPanel(const SequenceDocument& document, QWidget* parent = nullptr);

    /// Takes the text of the document's file; call this after it was read.
    void readLyrics();

protected:
    void changeEvent(QEvent* event) override;

private:
    void showPlace();
    QString markedText(const LyricPlace& place) const;

    const SequenceDocument& document_;
    std::vector<LyricLine> lines_;
    std::optional<LyricPlace> shown_;
    QLabel* current_;
    QLabel* next_;
};

} // namespace velmora
