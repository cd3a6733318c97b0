// Live playing through a JACK server that dies and comes back.

#include "app/AppDelegate.h"
#include "support/Bank.h"
#include "support/JackListener.h"
#include "support/JackServer.h"
#include "support/Stereo.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <thread>

namespace velmora {

namespace {

/// Strikes a key over and over on a thread of its own.
class Trill {
public:
    explicit Trill(LiveInput& input)
        : thread_([this, &input] {
              while (!isOver_) {
                  input.keyOn(72, 0.8F);
                  std::this_thread::sleep_for(std::chrono::milliseconds(50));
                  input.keyOff(72);
                  std::this_thread::sleep_for(std::chrono::milliseconds(50));
              }
          })
    {
    }

    ~Trill()
    {
        isOver_ = true;
        thread_.join();
    }

    Trill(const Trill&) = delete;
    Trill& operator=(const Trill&) = delete;

private:
    std::atomic<bool> isOver_{false};
    std::thread thread_;
};

/// Listens anew every second, because the program may lose its ports once more beside a server that
/// has just started.
bool isHeard()
{
    return waitUntil([] {
        JackListener listener;
        for (int i = 0; i < 48; ++i)
            if (peak(listener.listen(1000)) > 0.01F)
                return true;
        return false;
    });
}

} // namespace

TEST(Healing, SoundsAgainOnceTheServerIsBack)
{
    JackServer server;
    AppDelegate app;
    app.start({"jack", {}, 0.0, 0});
    app.waitForBank();
    const Trill trill(app);
    ASSERT_TRUE(isHeard());

    for (int i = 0; i < 2; ++i) {
        app.keyOn(40, 0.5F);
        server.crash();
        EXPECT_TRUE(waitUntil([&] { return app.output()->status().driver == "none"; }));
        EXPECT_EQ(app.output()->status().missing, "JACK has gone; waiting for it.");
        EXPECT_EQ(app.player().liveKeys().state(40), 0) << "is released";
        server.restart();
        const double restarted = getTime();
        ASSERT_TRUE(isHeard());
        std::printf("heard %.2f s after the start of the server\n", getTime() - restarted);
        EXPECT_TRUE(waitUntil([&] { return app.output()->status().missing.empty(); }));
    }
}

TEST(Healing, PlaysAnInstrumentThatWasOpenedBeforeThereWasSound)
{
    JackServer server;
    server.crash();
    AppDelegate app;
    app.start({"jack", {}, 0.0, 0});
    EXPECT_TRUE(waitUntil([&] { return app.output()->status().driver == "none"; }));
    EXPECT_EQ(app.output()->status().missing, "JACK is missing; waiting for it.");
    auto bank = std::make_unique<InstrumentDocument>();
    ASSERT_TRUE(bank->read(kBank, InstrumentFormat::SoundFont, {Reading::Plain}, app))
        << bank->errorString();
    app.addInstrument(std::move(bank));
    const Trill trill(app);
    server.restart();
    EXPECT_TRUE(isHeard());
}

} // namespace velmora
