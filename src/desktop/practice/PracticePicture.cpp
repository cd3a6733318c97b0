#include "desktop/practice/PracticePicture.h"

#include "desktop/widgets/scheme.h"
#include "sequencer/PracticeResult.h"

#include <QCoreApplication>
#include <QLocale>
#include <QPainter>

#include <algorithm>
#include <functional>

namespace velmora {

namespace {

/// One of the two diagrams: columns on a line, with a title above and labels below.
class Diagram {
public:
    Diagram(QPainter& painter, const QRectF& place, const QPalette& palette, std::size_t columns,
            int highest)
        : painter_(painter), palette_(palette), line_(painter.fontMetrics().height()),
          place_(place.adjusted(0.0, 1.5 * line_, 0.0, -2.0 * line_)),
          width_(place_.width() / static_cast<double>(std::max<std::size_t>(columns, 1))),
          unit_(place_.height() / std::max(highest, 1))
    {
    }

    void paintTitle(const QString& title)
    {
        painter_.setPen(palette_.color(QPalette::Text));
        painter_.drawText(QPointF(place_.left(), place_.top() - line_ / 2), title);
        painter_.drawLine(place_.bottomLeft(), place_.bottomRight());
    }

    /// Paints a part of a column, from one count up to another one.
    void paintColumn(std::size_t column, int from, int to, const QBrush& brush)
    {
        painter_.fillRect(partOfColumn(column, from, to), brush);
    }

    /// Frames a part of a column.
    void paintFrame(std::size_t column, int from, int to)
    {
        if (from == to)
            return;
        painter_.setPen(palette_.color(QPalette::Text));
        painter_.setBrush(Qt::NoBrush);
        painter_.drawRect(partOfColumn(column, from, to).adjusted(0.5, 0.5, -0.5, -0.5));
    }

    /// Paints a text below a column, with the left edge or the middle at the column's.
    void paintLabel(std::size_t column, const QString& text)
    {
        const double length = painter_.fontMetrics().horizontalAdvance(text);
        const double middle = leftOf(column) + width_ / 2 - length / 2;
        const double left = std::clamp(middle, place_.left(), place_.right() - length);
        painter_.setPen(palette_.color(QPalette::Text));
        painter_.drawText(QPointF(left, place_.bottom() + line_), text);
    }

    /// How many columns a label needs.
    std::size_t stride() const
    {
        const double label = painter_.fontMetrics().horizontalAdvance("0000");
        return static_cast<std::size_t>(std::max(1.0, label / width_ + 1.0));
    }

private:
    double leftOf(std::size_t column) const
    {
        return place_.left() + width_ * static_cast<double>(column);
    }

    QRectF partOfColumn(std::size_t column, int from, int to) const
    {
        const double gap = std::min(width_ / 8, 2.0);
        return {leftOf(column) + gap, place_.bottom() - unit_ * to, width_ - 2 * gap,
                unit_ * (to - from)};
    }

    QPainter& painter_;
    const QPalette& palette_;
    double line_;
    QRectF place_;
    double width_, unit_;
};

QString pictureText(const char* text)
{
    return QCoreApplication::translate("velmora::PracticePicture", text);
}

void paintBars(QPainter& painter, const QRectF& place, const PracticeSummary& summary,
               const QPalette& palette)
{
    int highest = 0;
    for (const PracticeBar& bar : summary.bars)
        highest = std::max(highest, bar.right + bar.wrong + bar.missed);
    Diagram diagram(painter, place, palette, summary.bars.size(), highest);
    const QColor right = schemeColor("KeyColorCorrect", palette).toQColor();
    const QColor wrong = schemeColor("KeyColorWrong", palette).toQColor();
    const std::size_t stride = diagram.stride();
    for (std::size_t i = 0; i < summary.bars.size(); ++i) {
        const PracticeBar& bar = summary.bars[i];
        diagram.paintColumn(i, 0, bar.right, right);
        const int struck = bar.right + bar.wrong;
        diagram.paintColumn(i, bar.right, struck, QBrush(wrong, Qt::BDiagPattern));
        diagram.paintFrame(i, struck, struck + bar.missed);
        if (i % stride == 0)
            diagram.paintLabel(i, QLocale().toString(bar.number));
    }
    diagram.paintTitle(pictureText(QT_TRANSLATE_NOOP(
        "velmora::PracticePicture", "Right, wrong (hatched) and missed (empty) keys by bar")));
}

void paintDelays(QPainter& painter, const QRectF& place, const PracticeSummary& summary,
                 const QPalette& palette)
{
    Diagram diagram(painter, place, palette, summary.delays.size(),
                    *std::ranges::max_element(summary.delays));
    const QColor color = accentOn({palette.color(QPalette::Base)}, palette);
    for (std::size_t i = 0; i < summary.delays.size(); ++i)
        diagram.paintColumn(i, 0, summary.delays[i], color);
    diagram.paintLabel(0, pictureText(QT_TRANSLATE_NOOP("velmora::PracticePicture", "early")));
    diagram.paintLabel(summary.delays.size() - 1,
                       pictureText(QT_TRANSLATE_NOOP("velmora::PracticePicture", "late")));
    const auto middle = static_cast<std::ptrdiff_t>(summary.delays.size() / 2);
    for (const int milliseconds : {-100, 0, 100}) {
        const int classes = milliseconds / static_cast<int>(1000 * PracticeSummary::kDelayClass);
        const std::ptrdiff_t column = middle + classes;
        diagram.paintLabel(static_cast<std::size_t>(column), QLocale().toString(milliseconds));
    }
    diagram.paintTitle(pictureText(
        QT_TRANSLATE_NOOP("velmora::PracticePicture", "How early or late the keys were, in ms")));
}

} // namespace

void paintPractice(QPainter& painter, QSizeF size, const PracticeSummary& summary,
                   const QPalette& palette)
{
    painter.fillRect(QRectF({}, size), palette.color(QPalette::Base));
    const double margin = painter.fontMetrics().height() / 2.0;
    const QRectF place = QRectF({}, size).adjusted(margin, margin, -margin, -margin);
    const QSizeF half(place.width(), place.height() / 2);
    paintBars(painter, {place.topLeft(), half}, summary, palette);
    paintDelays(painter, {QPointF(place.left(), place.center().y()), half}, summary, palette);
}

} // namespace velmora
