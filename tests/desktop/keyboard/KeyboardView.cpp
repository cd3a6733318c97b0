#include "desktop/keyboard/KeyboardView.h"

#include "base/Log.h"
#include "midi/midiRead.h"
#include "preferences/Preferences.h"
#include "sequencer/KeyboardDocument.h"

#include <QMainWindow>
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

/// A keyboard of the default 1232 × 120 pixels in its own window: A0 spans x = 1 to 23, Bb0 20 to
/// 34, B0 25 to 47, C1 49 to 71. Black keys end 72 pixels from the top.
class KeyboardViewTest : public testing::Test {
protected:
    KeyboardViewTest()
    {
        setPrefColor("KeyColorCorrect", Color(QColor(Qt::yellow)));
        setPrefColor("KeyColorSustain", Color(QColor(Qt::cyan)));
        window.setCentralWidget(view);
        window.resize(300, 120);
        view->updateWindowSize();
        view->setDocument(&player);
        window.show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&window));
        QTest::qWait(50);
    }

    ~KeyboardViewTest() override
    {
        for (const char* key :
             {"KeyColorCorrect", "KeyColorSustain", "KeyColor", "KeyNames", "KeyRangeHi"})
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
    QMainWindow window;
    KeyboardView* view = new KeyboardView(player);
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
    view->updateWindowSize();
    EXPECT_EQ(window.width(), 14 * 70);
}

} // namespace velmora
