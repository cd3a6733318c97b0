#include "platform/JackClient.h"

#include "platform/Uncancelled.h"

#include <algorithm>
#include <atomic>
#include <chrono>
#include <condition_variable>
#include <functional>
#include <mutex>
#include <set>
#include <thread>
#include <utility>
#include <vector>

namespace velmora {

namespace {

constexpr std::chrono::seconds kPatience{1};

/// A client that seems lost interrupts the sound, so a busy server gets more time for requests.
constexpr std::chrono::seconds kRequestPatience{3};

/// What the clients of the process have in common.
struct JackClients {
    std::mutex mutex;
    std::condition_variable callEnded;
    int callCount = 0;                      ///< Calls into libjack that have not returned.
    std::set<std::atomic<bool>*> lostFlags; ///< The flag of each open client.
};

JackClients& jackClients()
{
    static auto& clients = *new JackClients; // outlives the threads that are left waiting
    return clients;
}

/// The clients hear one after another that the server is gone, so the first one speaks for all.
void loseAllClients(void* /*data*/)
{
    const Uncancelled uncancelled;
    JackClients& clients = jackClients();
    const std::lock_guard lock(clients.mutex);
    for (std::atomic<bool>* isLost : clients.lostFlags)
        *isLost = true;
}

/// Makes a call into libjack, which may never return, on a thread of its own. Returns false if it
/// has not returned in time. Needs the lock and gives it up.
bool callWithPatience(std::unique_lock<std::mutex>& lock, std::function<void()> call,
                      std::chrono::seconds patience = kPatience)
{
    JackClients& clients = jackClients();
    ++clients.callCount;
    const auto hasReturned = std::make_shared<bool>(false);
    std::thread thread([&clients, hasReturned, call = std::move(call)]() mutable {
        call();
        call = nullptr; // may close the client
        const std::lock_guard guard(clients.mutex);
        --clients.callCount;
        *hasReturned = true;
        clients.callEnded.notify_all();
    });
    const bool isInTime = clients.callEnded.wait_for(lock, patience, [&] { return *hasReturned; });
    lock.unlock();
    if (isInTime)
        thread.join();
    else
        thread.detach();
    return isInTime;
}

} // namespace

struct JackClient::State {
    explicit State(const std::string& name)
        : client(jack_client_open(name.c_str(), JackNoStartServer, nullptr))
    {
        if (client == nullptr)
            return;
        jack_on_shutdown(client, loseAllClients, nullptr);
        const std::lock_guard lock(jackClients().mutex);
        jackClients().lostFlags.insert(&isLost);
    }

    ~State()
    {
        if (client == nullptr)
            return;
        jack_client_close(client);
        const std::lock_guard lock(jackClients().mutex);
        jackClients().lostFlags.erase(&isLost);
    }

    jack_client_t* client;
    std::atomic<bool> isLost{false};
    std::vector<std::shared_ptr<void>> kept;
};

std::unique_ptr<JackClient> JackClient::open(const std::string& name)
{
    JackClients& clients = jackClients();
    std::unique_lock lock(clients.mutex);
    const bool isFree =
        clients.callEnded.wait_for(lock, kPatience, [&] { return clients.callCount == 0; });
    if (!isFree || std::any_of(clients.lostFlags.begin(), clients.lostFlags.end(),
                               [](const std::atomic<bool>* isLost) { return isLost->load(); }))
        return nullptr;
    const auto opened = std::make_shared<std::shared_ptr<State>>();
    const bool hasReturned =
        callWithPatience(lock, [opened, name] { *opened = std::make_shared<State>(name); });
    if (!hasReturned || (*opened)->client == nullptr)
        return nullptr;
    return std::unique_ptr<JackClient>(new JackClient(std::move(*opened)));
}

JackClient::JackClient(std::shared_ptr<State> state) : state_(std::move(state)) {}

JackClient::~JackClient()
{
    std::unique_lock lock(jackClients().mutex);
    callWithPatience(lock, [state = std::move(state_)] {});
}

jack_client_t* JackClient::get() const
{
    return state_->client;
}

// Two requests at a time can make a synchronous server wait five seconds for one of the clients.
bool JackClient::call(std::function<void(jack_client_t*)> function)
{
    JackClients& clients = jackClients();
    std::unique_lock lock(clients.mutex);
    const bool isFree =
        clients.callEnded.wait_for(lock, kRequestPatience, [&] { return clients.callCount == 0; });
    if (isFree &&
        callWithPatience(
            lock, [state = state_, function = std::move(function)] { function(state->client); },
            kRequestPatience))
        return true;
    state_->isLost = true;
    return false;
}

void JackClient::keep(std::shared_ptr<void> data)
{
    state_->kept.push_back(std::move(data));
}

bool JackClient::isLost() const
{
    return state_->isLost;
}

} // namespace velmora
