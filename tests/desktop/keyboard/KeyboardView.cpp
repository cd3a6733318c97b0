#include "desktop/keyboard/KeyboardView.h"

#include "base/Log.h"
#include "midi/midiRead.h"
#include "preferences/Preferences.h"
#include "sequencer/KeyboardDocument.h"
#include "sequencer/LiveKeys.h"

#include <QMainWindow>
#include <QMessageBox>
#include <QtTest>
#include <gmock/gmock.h>
#include <spdlog/sinks/ostream_sink.h>
#include <spdlog/spdlog.h>

#include <sstream>

namespace velmora {

using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class RecordingPlayer : public LiveInput, public KeyboardDocument {
public:
    void keyOn(int key, float velocity) override
    {
        calls.push_back("on " + std::to_string(key) + (velocity < 1 ? " soft" : ""));
    }
    void keyOff(int key) override { calls.push_back("off " + std::to_string(key)); }
    void setVolume(float /*volume*/, std::size_t /*slider*/) override {}
    void midiInput() override { calls.emplace_back("input"); }
    int stateOfNote(unsigned key) const override { return states[key]; }

    std::vector<std::string> calls;
    std::array<int, 128> states{};
};

/// A keyboard of 1232 × 120 pixels in the classic scheme: A0 spans x = 1 to 23, Bb0 20 to 34, B0 25
/// to 47, C1 49 to 71. Black keys end 72 pixels from the top.
class KeyboardViewTest : public testing::Test {
protected:
    KeyboardViewTest()
    {
        setPrefString("Scheme", "Classic");
        setPrefColor("KeyColorCorrect", Color(QColor(Qt::yellow)));
        setPrefColor("KeyColorSustain", Color(QColor(Qt::cyan)));
        window.setCentralWidget(view);
        window.resize(1232, 120);
        view->setDocument(&player);
        window.show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&window));
        QTest::qWait(50);
    }

    ~KeyboardViewTest() override
    {
        for (const char* key :
             {"KeyColorCorrect", "KeyColorSustain", "KeyColor", "KeyNames", "KeyRangeHi", "Scheme"})
            resetPref(key);
    }

    QRgb colorAt(int x, int yFromTop) const
    {
        return view->grabFramebuffer().pixel(x, yFromTop) & RGB_MASK;
    }

    void drag(QPoint to)
    {
        QMouseEvent event(QEvent::MouseMove, to, view->mapToGlobal(to), Qt::NoButton,
                          Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(view, &event);
    }

    RecordingPlayer player;
    LiveKeys keys;
    QMainWindow window;
    KeyboardView* view = new KeyboardView(player, keys);
};

constexpr QRgb kWhiteKey = 0xffffff;
constexpr QRgb kBlack = 0x000000;
constexpr QRgb kBlue = 0x0000ff;
constexpr QRgb kGreen = 0x00ff00;
constexpr QRgb kRed = 0xff0000;

} // namespace

TEST(KeyboardGeometry, FindsTheKeyDrawnAtAPoint)
{
    for (int lo = 0; lo < 24; ++lo) {
        const KeyboardGeometry geometry{14, lo, lo + 40};
        EXPECT_EQ(geometry.width(), 14 * 41);
        for (const KeyQuad& quad : geometry.keys(100)) {
            // The grids of the upper and the lower part lie up to a semitone apart.
            const double middle = (quad.left + quad.right) / 2;
            EXPECT_EQ(geometry.keyAt(middle, quad.isBlack ? 70 : 20, 100), quad.key)
                << "from key " << lo;
        }
    }
}

TEST_F(KeyboardViewTest, ColorsKeysByTheirState)
{
    std::ostringstream log;
    const auto sink = std::make_shared<spdlog::sinks::ostream_sink_st>(log);
    sink->set_pattern("%v");
    logger("desktop"); // registers it with spdlog
    const auto desktopLog = spdlog::get("desktop");
    const auto level = desktopLog->level();
    desktopLog->sinks().push_back(sink);
    desktopLog->set_level(spdlog::level::debug);
    const struct {
        int state;
        QRgb white;
        QRgb black;
    } rows[] = {{0, kWhiteKey, kBlack},  {1, kRed, kRed},         {2, kGreen, kGreen},
                {3, 0xffff00, 0xffff00}, {4, 0x00ffff, 0x00ffff}, {5, kWhiteKey, kBlue},
                {6, kGreen, kGreen},     {7, kWhiteKey, kBlue}};
    for (const auto& row : rows) {
        player.states[21] = player.states[22] = row.state;
        EXPECT_EQ(colorAt(3, 3), row.white) << row.state;
        log.str({});
        const QImage image = view->grabFramebuffer();
        EXPECT_EQ(log.str(), row.black == kBlue ? fmt::format("wrong {}\n", row.state) : "");
        const auto at = [&image](int x, int y) { return image.pixel(x, y) & RGB_MASK; };
        EXPECT_EQ(at(22, 3), row.black) << row.state << ": the black key is on top";
        EXPECT_EQ(at(22, 72), row.white) << row.state << ": below the black key";
        EXPECT_THAT((std::array{at(21, 3), at(27, 71), at(33, 3)}), Each(kBlack))
            << row.state << ": the black key keeps its frame";
        EXPECT_THAT((std::array{at(0, 119), at(23, 119), at(24, 119)}), Each(kBlack))
            << row.state << ": between white keys";
    }
    desktopLog->sinks().pop_back();
    desktopLog->set_level(level);
}

TEST_F(KeyboardViewTest, GlidesAcrossKeysWithTheLeftButton)
{
    QTest::mousePress(view, Qt::RightButton, {}, {12, 100});
    EXPECT_THAT(player.calls, IsEmpty());
    QTest::mousePress(view, Qt::LeftButton, {}, {12, 100});
    drag({14, 101}); // the same key
    drag({27, 20});  // Bb0
    drag({60, 100}); // C1
    QTest::mouseRelease(view, Qt::LeftButton, {}, {60, 300});
    EXPECT_THAT(player.calls, ElementsAre("on 21", "input", "off 21", "on 22", "input", "off 22",
                                          "on 24", "input", "off 24", "input"));
    player.calls.clear();
    QTest::mousePress(view, Qt::LeftButton, {}, {12, 100});
    drag({-5, 100});
    QTest::mouseRelease(view, Qt::LeftButton, {}, {-5, 100});
    QTest::mousePress(view, Qt::LeftButton, {}, {12, 100});
    window.hide();
    EXPECT_THAT(player.calls, ElementsAre("on 21", "input", "off 21", "input", "on 21", "input",
                                          "off 21", "input"));
}

TEST_F(KeyboardViewTest, CentresItsKeysInAWiderWindow)
{
    window.resize(1448, 120); // the white keys up to C8 are 1248 pixels wide
    EXPECT_TRUE(QTest::qWaitFor([&] { return view->width() == 1448; }));
    EXPECT_EQ(colorAt(99, 100), kBlack);
    EXPECT_EQ(colorAt(102, 100), kWhiteKey);
    EXPECT_EQ(colorAt(1346, 100), kWhiteKey);
    QTest::mouseClick(view, Qt::LeftButton, {}, {99, 100});
    QTest::mouseClick(view, Qt::LeftButton, {}, {1349, 100});
    QTest::mouseClick(view, Qt::LeftButton, {}, {1346, 100});
    EXPECT_THAT(player.calls, ElementsAre("on 108", "input", "off 108", "input"));
}

TEST_F(KeyboardViewTest, PaintsOnlyIfThePictureChanges)
{
    QSignalSpy paints(view, &QOpenGLWidget::aboutToCompose);
    const auto isPainted = [&] {
        paints.clear();
        view->refresh();
        QTest::qWait(20);
        return !paints.isEmpty();
    };
    EXPECT_FALSE(isPainted());
    player.states[60] = 2;
    EXPECT_TRUE(isPainted());
    EXPECT_FALSE(isPainted());
    setPrefColor("KeyColor", Color(QColor(Qt::blue)));
    EXPECT_TRUE(isPainted());
    setPrefBool("KeyNames", false);
    EXPECT_TRUE(isPainted());
    setPrefInt("KeyRangeHi", 90);
    EXPECT_TRUE(isPainted());
}

TEST_F(KeyboardViewTest, FillsItsWidthWithTheKeysThatItDraws)
{
    setPrefString("Scheme", "Calm");
    for (const auto& [lo, hi, width] :
         {std::array{21, 108, 1280}, {21, 108, 640}, {22, 106, 1000}, {0, 127, 2000}}) {
        const KeyboardGeometry geometry = KeyboardGeometry::filling(width, lo, hi);
        EXPECT_NEAR(geometry.right() - geometry.left(), width, 0.01) << lo;
        for (const KeyQuad& quad : geometry.keys(100)) {
            EXPECT_GE(quad.left, geometry.left() - 0.01) << lo;
            EXPECT_LE(quad.right, geometry.right() + 0.01) << lo;
            for (const float x : {quad.left + 0.5F, quad.right - 0.5F})
                EXPECT_EQ(geometry.drawnKeyAt(x, quad.isBlack ? 45 : 20, 100), quad.key)
                    << quad.key;
        }
    }
    EXPECT_GT(KeyboardGeometry::filling(100, 21, 108).right(), 400) << "keys can still be hit";
    EXPECT_LT(KeyboardGeometry::filling(5000, 60, 72).right(), 600) << "keys stay keys";

    QTest::mouseClick(view, Qt::LeftButton, {}, {1230, 119});
    QTest::mouseClick(view, Qt::LeftButton, {}, {1, 1});
    EXPECT_THAT(player.calls, ElementsAre("on 108", "input", "off 108", "input", "on 21", "input",
                                          "off 21", "input"));
}

TEST_F(KeyboardViewTest, MarksTheStatesOfKeysWithoutTheirColors)
{
    setPrefString("Scheme", "Calm");
    for (const char* key : {"KeyColor", "KeyColorCorrect", "KeyColorSustain", "KeyColorWrong"})
        setPrefColor(key, Color(QColor(Qt::gray)));
    player.states[100] = kWanted;
    std::vector<QImage> images;
    for (const int state : {0, kPressed, kWanted, kWanted | kPressed, kHeld, kWanted | kHeld}) {
        player.states[48] = player.states[49] = state;
        const QImage image = view->grabFramebuffer();
        const int middle = 16 * 1232 / 52; // C3 and C#3
        for (const QRect& place : {QRect(middle, 75, 24, 45), QRect(middle + 12, 0, 24, 70)})
            images.push_back(image.copy(place));
    }
    for (std::size_t i = 0; i < images.size(); ++i)
        for (std::size_t j = i + 2; j < images.size(); j += 2)
            EXPECT_NE(images[i], images[j]) << i << " and " << j;
    resetPref("KeyColorWrong");
}

TEST_F(KeyboardViewTest, ShowsEveryHeldKeyWithAndWithoutADocument)
{
    const auto heldIsShown = [&] { return colorAt(3, 3) == 0x00ffff; };
    keys.press(21, 1.0F, 0.0);
    EXPECT_TRUE(heldIsShown()) << "a note of the piece has ended on the key";
    player.states[21] = kPressed;
    EXPECT_FALSE(heldIsShown()) << "the document decides";
    setPrefString("Scheme", "Calm");
    EXPECT_TRUE(heldIsShown()) << "no key is wrong where none is wanted";
    player.states[60] = kWanted;
    EXPECT_FALSE(heldIsShown());
    view->setDocument(nullptr);
    EXPECT_TRUE(heldIsShown());
    keys.release(21, 0.0);
    EXPECT_FALSE(heldIsShown());
}

TEST_F(KeyboardViewTest, ReleasesTheMouseKeyWhenADialogOpens)
{
    QTest::mousePress(view, Qt::LeftButton, {}, {12, 100});
    QMessageBox box(&window);
    box.setModal(true);
    box.show();
    EXPECT_THAT(player.calls, ElementsAre("on 21", "input", "off 21", "input"));
}

} // namespace velmora
