#include "desktop/practice/PracticeWindow.h"

#include "desktop/practice/PracticePicture.h"
#include "desktop/widgets/closeByKeys.h"
#include "desktop/widgets/windowPlace.h"

#include <QGridLayout>
#include <QImage>
#include <QLabel>
#include <QListWidget>
#include <QLocale>
#include <QPainter>
#include <QPushButton>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <utility>

namespace velmora {

namespace {

constexpr QSize kFirstPracticeSize(760, 460);
constexpr QSize kSmallestPicture(320, 240);
constexpr int kListWidth = 220;

/// The size of a picture in a file, in pixels.
constexpr QSize kSavedPicture(1200, 800);

QString percentOf(double speed)
{
    return QLocale().toString(static_cast<int>(std::lround(speed * 100)));
}

} // namespace

/// The picture of one session.
class PracticeWindow::Picture : public QWidget {
public:
    Picture() { setMinimumSize(kSmallestPicture); }

    void show(const PracticeSummary& summary)
    {
        summary_ = summary;
        update();
    }

    QImage image() const
    {
        QImage image(kSavedPicture, QImage::Format_RGB32);
        QPainter painter(&image);
        QFont large = font();
        large.setPixelSize(kSavedPicture.height() / 40);
        painter.setFont(large);
        paintPractice(painter, kSavedPicture, summary_, palette());
        return image;
    }

protected:
    void paintEvent(QPaintEvent* /*event*/) override
    {
        QPainter painter(this);
        paintPractice(painter, size(), summary_, palette());
    }

private:
    PracticeSummary summary_;
};

PracticeWindow::PracticeWindow(QWidget* parent)
    : QWidget(parent, Qt::Window), list_(new QListWidget), text_(new QLabel), picture_(new Picture)
{
    list_->setAccessibleName(tr("Practice sessions"));
    list_->setMaximumWidth(kListWidth);
    text_->setWordWrap(true);
    picture_->setAccessibleName(tr("Result by bar and by time"));
    auto* save = new QPushButton(tr("Save &Picture…"));
    auto* grid = new QGridLayout(this);
    grid->addWidget(list_, 0, 0, 3, 1);
    grid->addWidget(text_, 0, 1);
    grid->addWidget(picture_, 1, 1);
    grid->addWidget(save, 2, 1, Qt::AlignRight);
    grid->setRowStretch(1, 1);
    grid->setColumnStretch(1, 1);
    connect(list_, &QListWidget::currentRowChanged, this, &PracticeWindow::showEntry);
    connect(save, &QPushButton::clicked, this, [this] { emit saveRequested(picture_->image()); });
    resize(kFirstPracticeSize);
    closeByKeys(*this);
    rememberPlace(*this, "practice");
}

void PracticeWindow::show(const QString& piece, std::vector<PracticeEntry> entries)
{
    setWindowTitle(tr("Practice: %1").arg(piece));
    std::ranges::reverse(entries);
    list_->clear();
    entries_ = std::move(entries);
    for (const PracticeEntry& entry : entries_)
        list_->addItem(tr("%1 at %2 %", "a time, a speed in percent")
                           .arg(QLocale().toString(entry.time.toLocalTime(), QLocale::ShortFormat),
                                percentOf(entry.summary.speed)));
    list_->setCurrentRow(0);
    present(*this);
}

void PracticeWindow::showEntry(int row)
{
    if (row < 0)
        return;
    const PracticeSummary& summary = entries_.at(static_cast<std::size_t>(row)).summary;
    const QLocale locale;
    const QString counts =
        tr("Right keys: %1 (%2 early, %3 late), wrong keys: %4, missed keys: %5. Passes: %6, "
           "without a mistake: %7.")
            .arg(locale.toString(summary.right), locale.toString(summary.early),
                 locale.toString(summary.late), locale.toString(summary.wrong),
                 locale.toString(summary.missed), locale.toString(summary.passes),
                 locale.toString(summary.cleanPasses));
    const auto delay = static_cast<int>(std::lround(summary.medianDelay * 1000));
    const QString typical = delay < 0 ? tr("Typically, keys were %1 ms early.")
                                      : tr("Typically, keys were %1 ms late.");
    text_->setText(counts + '\n' + typical.arg(locale.toString(std::abs(delay))));
    picture_->show(summary);
}

} // namespace velmora
