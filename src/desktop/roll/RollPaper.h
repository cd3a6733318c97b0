#pragma once

#include "desktop/roll/RollColors.h"
#include "desktop/roll/RollIndex.h"
#include "sequencer/MusicalTime.h"
#include "sequencer/Sequence.h"
#include "sequencer/Voices.h"

#include <QCoreApplication>
#include <QSizeF>
#include <QString>

#include <vector>

class QImage;
class QPainter;

namespace velmora {

class SequenceDocument;

/// The roll of a piece on paper: lines of whole bars one below the other, with time across, the
/// names of keys and notes, the numbers of bars, and the voices in their colours. Lengths are in
/// dots, of which an inch has `kDotsPerInch`.
class RollPaper {
    Q_DECLARE_TR_FUNCTIONS(velmora::RollPaper)

public:
    static constexpr int kDotsPerInch = 144;

    /// Some bars beside each other, from a step to another one.
    struct Line {
        double start;
        double end;
    };

    /// Lays out a copy of the piece for pages of a size, at least 600 dots wide and high. Throws
    /// std::length_error with a sentence if that would be more than 1000 lines.
    RollPaper(const SequenceDocument& document, QString title, int barsPerLine, QSizeF page);

    const std::vector<Line>& lines() const { return lines_; }
    int pages() const;
    void paintPage(QPainter& painter, int page) const;

    /// Returns all the lines in one picture, with a pixel for each dot. Throws std::length_error
    /// with a sentence if it would be too high.
    QImage image() const;

private:
    void takeNotes(const SequenceDocument& document);
    void makeLines(int barsPerLine);
    void fitRows();
    double lineHeight() const;
    std::size_t linesOn(int page) const;
    void paintTitle(QPainter& painter) const;
    void paintLine(QPainter& painter, const Line& line, double top) const;
    void paintRoll(QPainter& painter, const Line& line) const;
    void paintNames(QPainter& painter, const Line& line) const;
    void paintKeys(QPainter& painter) const;
    void paintBars(QPainter& painter, const Line& line) const;
    double rowTop(double key) const { return (lastKey_ + 1 - key) * keyHeight_; }

    std::vector<Note> notes_; ///< At rest: neither selected nor sounding.
    RollIndex index_;
    MusicalTime time_;
    Voices voices_;
    QString title_;
    QSizeF page_;
    RollColors colors_;
    std::vector<Line> lines_;
    int firstKey_ = 60, lastKey_ = 71; ///< The rows that are shown.
    int keyHeight_ = 0;
    double stepWidth_ = 0.0;
};

} // namespace velmora
