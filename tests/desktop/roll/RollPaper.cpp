#include "desktop/roll/RollPaper.h"

#include "base/File.h"
#include "desktop/roll/writeRoll.h"
#include "support/SequenceTest.h"

#include <QImage>
#include <QTemporaryDir>
#include <gmock/gmock.h>

namespace velmora {

namespace {

constexpr QSizeF kA4(1684, 1190);
constexpr QRgb kFirstVoice = 0x2d5b88;

class RollPaperTest : public SequenceTest {
protected:
    void setSignatures(std::vector<TimeSignature> signatures)
    {
        MusicalTime time = document_.time();
        time.setTimeSignatures(std::move(signatures));
        document_.setTime(time, "Signatures");
    }

    /// The area of a colour, one pixel for each of its pixels in the picture.
    static QRect areaOf(const QImage& image, QRgb color)
    {
        QRect area;
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                if ((image.pixel(x, y) & 0xffffffU) == color)
                    area |= QRect(x, y, 1, 1);
        return area;
    }

    QImage imageOf(int barsPerLine)
    {
        return RollPaper(document_, "Test", barsPerLine, kA4).image();
    }
};

} // namespace

TEST_F(RollPaperTest, LinesHoldWholeBars)
{
    setSignatures({{0, 4, 4}, {64, 3, 4}});
    add(60, 0, 64 + 5 * 24); // to the end of the seventh bar
    std::vector<std::pair<double, double>> lines;
    const RollPaper paper(document_, "Test", 3, kA4);
    for (const auto& [start, end] : paper.lines())
        lines.emplace_back(start, end);
    EXPECT_THAT(lines, testing::ElementsAre(std::pair(0.0, 88.0), std::pair(88.0, 160.0),
                                            std::pair(160.0, 232.0)));
}

TEST_F(RollPaperTest, ShowsNotesAtRestWhereTheirBarsAre)
{
    add(60, 0, 16);
    const QRect first = areaOf(imageOf(1), kFirstVoice);
    EXPECT_NEAR(first.width(), (kA4.width() - 2 * 56 - 44) / 2, 8) << "half of the only bar";
    document_.edit()->select();
    EXPECT_EQ(areaOf(imageOf(1), kFirstVoice), first) << "also while it is selected";

    add(60, 48, 16);
    const QRect both = areaOf(imageOf(1), kFirstVoice);
    EXPECT_EQ(both.top(), first.top());
    EXPECT_EQ(both.left(), first.left());
    EXPECT_GT(both.bottom(), first.bottom() + 100) << "the second bar is on a line of its own";
    EXPECT_NEAR(both.width(), 2 * first.width(), 8) << "in its second half";
    EXPECT_EQ(areaOf(imageOf(2), kFirstVoice).bottom(), first.bottom());
}

TEST_F(RollPaperTest, WritesPagesAndRefusesEndlessPieces)
{
    add(36, 0, 8);
    add(96, 40 * 32 - 8, 8);
    const QTemporaryDir folder;
    const std::filesystem::path file = folder.filePath("roll.pdf").toStdString();
    writeRoll(file, document_, "Test", 4);
    const std::string pdf = readTextFile(file);
    std::size_t pages = 0;
    for (std::size_t at = pdf.find("/Type /Page\n"); at != std::string::npos;
         at = pdf.find("/Type /Page\n", at + 1))
        ++pages;
    EXPECT_EQ(pages, static_cast<std::size_t>(RollPaper(document_, "Test", 4, kA4).pages()));
    EXPECT_GT(pages, 2U);

    writeRoll(folder.filePath("roll.PNG").toStdString(), document_, "Test", 4);
    EXPECT_EQ(QImage(folder.filePath("roll.PNG")), imageOf(4));

    add(60, 1e9, 8);
    EXPECT_THROW(writeRoll(file, document_, "Test", 4), std::length_error);
    EXPECT_EQ(readTextFile(file), pdf);
}

} // namespace velmora
