#include "desktop/roll/RollPaper.h"

#include "desktop/keyboard/KeyboardGeometry.h"
#include "desktop/roll/RollPicture.h"
#include "desktop/widgets/noteNames.h"
#include "sequencer/SequenceDocument.h"

#include <QImage>
#include <QLocale>
#include <QPainter>

#include <algorithm>
#include <cmath>
#include <set>
#include <stdexcept>
#include <utility>

namespace velmora {

namespace {

constexpr double kPaperMargin = 56, kKeyStrip = 44, kBarNumbers = 20, kLineGap = 18;
constexpr double kTitleHeight = 40, kLegendHeight = 26, kFooter = 24;
constexpr double kPaperSwatch = 12;
constexpr int kTitleText = 28, kText = 15; // pixel sizes of letters
constexpr int kLowestRow = 6, kHighestRow = 18;

/// Two lines shall fit on a page if their rows do not become too low.
constexpr int kWantedLines = 2;

/// An octave at least, so that a piece of few notes still looks like a keyboard.
constexpr int kFewestKeys = 12;

constexpr std::size_t kMostLines = 1000;
constexpr double kHighestImage = 30'000;

/// Black on white, whatever the theme is.
QPalette paperPalette()
{
    QPalette palette(Qt::lightGray);
    palette.setColor(QPalette::Base, Qt::white);
    palette.setColor(QPalette::Text, Qt::black);
    return palette;
}

QFont letters(int pixels)
{
    QFont font;
    font.setPixelSize(pixels);
    return font;
}

QColor colorOf(RollShade shade)
{
    return {shade[0], shade[1], shade[2], shade[3]};
}

} // namespace

RollPaper::RollPaper(const SequenceDocument& document, QString title, int barsPerLine, QSizeF page)
    : time_(document.time()), voices_(document.voices()), title_(std::move(title)), page_(page),
      colors_(paperPalette(), Scheme::Calm)
{
    takeNotes(document);
    makeLines(barsPerLine);
    fitRows();
}

void RollPaper::takeNotes(const SequenceDocument& document)
{
    notes_ = document.sequence().notes();
    for (Note& note : notes_)
        note.selected = note.active = false;
    index_.rebuild(notes_);
    if (notes_.empty())
        return;
    const auto [lowest, highest] = std::ranges::minmax_element(notes_, {}, &Note::key);
    firstKey_ = std::max(0, static_cast<int>(lowest->key) - 1);
    lastKey_ = std::min(RollGeometry::kKeys - 1, static_cast<int>(highest->key) + 1);
    const int missing = std::max(0, kFewestKeys - (lastKey_ - firstKey_ + 1));
    firstKey_ = std::max(0, firstKey_ - missing / 2);
    lastKey_ = std::min(RollGeometry::kKeys - 1,
                        firstKey_ + std::max(kFewestKeys - 1, lastKey_ - firstKey_));
}

void RollPaper::makeLines(int barsPerLine)
{
    double end = 0.0;
    for (const Note& note : notes_)
        end = std::max(end, note.start + note.length);
    double step = time_.barAt(0.0).start;
    do {
        if (lines_.size() == kMostLines)
            throw std::length_error(
                tr("The piece is too long for this. Please take more bars for each line.")
                    .toStdString());
        Line line{step, step};
        for (int i = 0; i < barsPerLine; ++i) {
            const Bar bar = time_.barAt(line.end);
            line.end = bar.start + bar.length;
        }
        lines_.push_back(line);
        step = line.end;
    } while (step < end);
}

void RollPaper::fitRows()
{
    double longest = 0.0;
    for (const Line& line : lines_)
        longest = std::max(longest, line.end - line.start);
    stepWidth_ = (page_.width() - 2 * kPaperMargin - kKeyStrip) / longest;
    const double room = page_.height() - 2 * kPaperMargin - kTitleHeight - kLegendHeight - kFooter;
    const auto rowsOf = [&](int lines) {
        return static_cast<int>((room / lines - kBarNumbers - kLineGap) /
                                (lastKey_ - firstKey_ + 1));
    };
    keyHeight_ = std::clamp(rowsOf(kWantedLines), kLowestRow, kHighestRow);
    if (keyHeight_ > rowsOf(1))
        keyHeight_ = std::max(1, rowsOf(1));
}

double RollPaper::lineHeight() const
{
    return kBarNumbers + (lastKey_ - firstKey_ + 1) * keyHeight_ + kLineGap;
}

std::size_t RollPaper::linesOn(int page) const
{
    const double head = page == 0 ? kTitleHeight + kLegendHeight : 0.0;
    return static_cast<std::size_t>(
        std::max(1.0, (page_.height() - 2 * kPaperMargin - kFooter - head) / lineHeight()));
}

int RollPaper::pages() const
{
    const std::size_t first = linesOn(0);
    if (lines_.size() <= first)
        return 1;
    return 1 + static_cast<int>((lines_.size() - first + linesOn(1) - 1) / linesOn(1));
}

void RollPaper::paintPage(QPainter& painter, int page) const
{
    const std::size_t begin =
        page == 0 ? 0 : linesOn(0) + static_cast<std::size_t>(page - 1) * linesOn(1);
    const std::size_t end = std::min(lines_.size(), begin + linesOn(page));
    double top = kPaperMargin;
    if (page == 0) {
        paintTitle(painter);
        top += kTitleHeight + kLegendHeight;
    }
    for (std::size_t i = begin; i < end; ++i, top += lineHeight())
        paintLine(painter, lines_[i], top);
    if (pages() == 1)
        return;
    painter.setFont(letters(kText));
    painter.setPen(Qt::black);
    painter.drawText(QRectF(0, page_.height() - kPaperMargin - kFooter / 2, page_.width(), kFooter),
                     Qt::AlignCenter, tr("%1 / %2").arg(page + 1).arg(pages()));
}

QImage RollPaper::image() const
{
    const double height = 2 * kPaperMargin + kTitleHeight + kLegendHeight +
                          static_cast<double>(lines_.size()) * lineHeight();
    if (height > kHighestImage)
        throw std::length_error(tr("The piece is too long for one picture. Please take more bars "
                                   "for each line, or write PDF.")
                                    .toStdString());
    QImage image(static_cast<int>(page_.width()), static_cast<int>(height), QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    paintTitle(painter);
    double top = kPaperMargin + kTitleHeight + kLegendHeight;
    for (const Line& line : lines_) {
        paintLine(painter, line, top);
        top += lineHeight();
    }
    return image;
}

void RollPaper::paintTitle(QPainter& painter) const
{
    painter.setPen(Qt::black);
    painter.setFont(letters(kTitleText));
    painter.drawText(
        QRectF(kPaperMargin, kPaperMargin, page_.width() - 2 * kPaperMargin, kTitleHeight),
        Qt::AlignCenter, title_);
    std::set<std::uint32_t> channels;
    for (const Note& note : notes_)
        channels.insert(static_cast<std::uint32_t>(channelOf(note)));
    if (channels.size() < 2)
        return;
    painter.setFont(letters(kText));
    double left = kPaperMargin;
    for (const std::uint32_t channel : channels) {
        const std::string& own = voices_[channel].name;
        const QString name =
            own.empty() ? QLocale().toString(channel + 1) : QString::fromStdString(own);
        const double width = painter.fontMetrics().horizontalAdvance(name);
        const Note note{.velocity = 1.0F, .channel = channel};
        const double top = kPaperMargin + kTitleHeight;
        painter.fillRect(QRectF(left, top, kPaperSwatch, kPaperSwatch), colors_.of(note));
        painter.drawText(QRectF(left + 1.5 * kPaperSwatch, top - kPaperSwatch / 4, width + 1,
                                1.5 * kPaperSwatch),
                         Qt::AlignVCenter, name);
        left += 3 * kPaperSwatch + width;
    }
}

void RollPaper::paintLine(QPainter& painter, const Line& line, double top) const
{
    painter.save();
    painter.translate(kPaperMargin, top + kBarNumbers);
    paintKeys(painter);
    painter.translate(kKeyStrip, 0);
    paintBars(painter, line);
    paintRoll(painter, line);
    paintNames(painter, line);
    painter.restore();
}

void RollPaper::paintRoll(QPainter& painter, const Line& line) const
{
    // The roll counts in whole pixels for each step, so the rest is done by the scale.
    const int perStep = std::max(1, static_cast<int>(std::ceil(stepWidth_)));
    const double scale = stepWidth_ / perStep;
    const double rows = rowTop(firstKey_);
    const double width = (line.end - line.start) * stepWidth_;
    const RollGeometry geometry{
        keyHeight_,           perStep, static_cast<double>(firstKey_) * keyHeight_,
        line.start * perStep, rows,    width / scale};
    RollPicture picture;
    picture.drawAtRest(geometry, colors_, 1.0, notes_, time_, index_);

    painter.save();
    painter.setClipRect(QRectF(0, 0, width, rows));
    painter.setPen(Qt::NoPen);
    const auto& corners = picture.vertices();
    for (std::size_t i = 0; i + 4 <= corners.size(); i += 4) {
        QPolygonF quad;
        for (std::size_t corner = i; corner < i + 4; ++corner)
            quad += QPointF(corners[corner].y * scale, rows - corners[corner].x);
        painter.setBrush(colorOf(corners[i].color));
        painter.drawPolygon(quad);
    }
    painter.restore();
    painter.setPen(colorOf(colors_.barLine));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(QRectF(0, 0, width, rows));
}

void RollPaper::paintNames(QPainter& painter, const Line& line) const
{
    painter.setFont(letters(std::max(1, keyHeight_ - 4)));
    const QFontMetricsF metrics(painter.font());
    index_.visit(notes_, line.start, line.end, [&](const Note& note) {
        const double left = (std::max(note.start, line.start) - line.start) * stepWidth_;
        const double right =
            (std::min(note.start + note.length, line.end) - line.start) * stepWidth_;
        const QString name = noteText(note.key);
        if (note.start >= line.end || metrics.horizontalAdvance(name) > right - left - 6)
            return;
        painter.setPen(inkOn(colors_.of(note)));
        painter.drawText(QRectF(left + 4, rowTop(note.key + 1), right - left, keyHeight_),
                         Qt::AlignLeft | Qt::AlignVCenter, name);
    });
}

void RollPaper::paintKeys(QPainter& painter) const
{
    painter.setFont(letters(std::clamp(2 * keyHeight_, 9, kText)));
    for (int key = firstKey_; key <= lastKey_; ++key) {
        const QRectF row(0, rowTop(key + 1), kKeyStrip, keyHeight_);
        if (isBlackKey(key))
            painter.fillRect(row.adjusted(kKeyStrip * 0.5, 0, 0, 0), Qt::black);
        else if (key % 12 == 0) {
            painter.setPen(Qt::black);
            painter.drawText(row.adjusted(0, -kText, -kKeyStrip * 0.5 - 3, kText),
                             Qt::AlignRight | Qt::AlignVCenter,
                             noteText(static_cast<unsigned>(key)));
            painter.drawLine(row.bottomLeft() + QPointF(kKeyStrip * 0.5, 0), row.bottomRight());
        }
    }
    painter.setPen(Qt::black);
    painter.drawRect(QRectF(kKeyStrip * 0.5, 0, kKeyStrip * 0.5, rowTop(firstKey_)));
}

void RollPaper::paintBars(QPainter& painter, const Line& line) const
{
    painter.setFont(letters(kText));
    painter.setPen(Qt::black);
    for (double step = line.start; step < line.end;) {
        const Bar bar = time_.barAt(step);
        painter.drawText(
            QRectF((step - line.start) * stepWidth_, -kBarNumbers, kBarNumbers * 4, kBarNumbers),
            Qt::AlignLeft | Qt::AlignVCenter, QLocale().toString(bar.number));
        step = bar.start + bar.length;
    }
}

} // namespace velmora
