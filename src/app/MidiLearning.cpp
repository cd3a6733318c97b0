#include "app/MidiLearning.h"

#include "base/Log.h"
#include "preferences/settings.h"

#include <QStringList>

#include <algorithm>
#include <array>
#include <utility>

namespace velmora {

namespace {

constexpr const char* kLearnedKey = "LearnedControls";

constexpr std::array<const char*, 7> kActionNames{"",     "volume",  "play",  "record",
                                                  "stop", "silence", "master"};
constexpr const char* kKeyName = "key";
constexpr const char* kControllerName = "controller";

/// Writes a binding as five words, such as "controller 1 21 volume 3": the kind of control, its
/// channel from 1, its number, the action, and the number of its slider from 0.
QString written(MidiControl control, LearnedAction action)
{
    return QString("%1 %2 %3 %4 %5")
        .arg(control.kind == MidiControl::Kind::Key ? kKeyName : kControllerName)
        .arg(control.channel + 1)
        .arg(control.number)
        .arg(kActionNames.at(static_cast<std::size_t>(action.kind)))
        .arg(action.slider);
}

/// Reads what `written` has written.
std::optional<std::pair<MidiControl, LearnedAction>> parsed(const QString& text)
{
    const QStringList words = text.split(' ');
    if (words.size() != 5)
        return std::nullopt;
    const bool isKey = words[0] == kKeyName;
    bool isNumber[3] = {};
    const int channel = words[1].toInt(&isNumber[0]) - 1;
    const int number = words[2].toInt(&isNumber[1]);
    const int slider = words[4].toInt(&isNumber[2]);
    const auto* name = std::find(kActionNames.begin() + 1, kActionNames.end(), words[3]);
    if (!std::ranges::all_of(isNumber, std::identity()) ||
        (!isKey && words[0] != kControllerName) || channel < 0 || channel >= midi::kChannels ||
        number < 0 || number >= (isKey ? 128 : midi::kAllSoundOff) || slider < 0 ||
        slider > 0xFFFF || name == kActionNames.end())
        return std::nullopt;
    return std::pair(MidiControl{isKey ? MidiControl::Kind::Key : MidiControl::Kind::Controller,
                                 static_cast<std::uint8_t>(channel),
                                 static_cast<std::uint8_t>(number)},
                     LearnedAction{static_cast<LearnedAction::Kind>(name - kActionNames.begin()),
                                   static_cast<std::uint16_t>(slider)});
}

} // namespace

MidiLearning::MidiLearning()
{
    for (const QString& text : preference(kLearnedKey).toStringList()) {
        const auto binding = parsed(text);
        if (!binding) {
            logger("app").warn("the preference {} has an unreadable entry: {}", kLearnedKey,
                               text.toStdString());
            continue;
        }
        bindings_.push_back(*binding);
        controls_.set(binding->first, binding->second);
    }
}

std::optional<MidiControl> MidiLearning::getControl(LearnedAction action) const
{
    const auto found = std::ranges::find(bindings_, action, &Binding::second);
    return found == bindings_.end() ? std::nullopt : std::optional(found->first);
}

void MidiLearning::listen(LearnedAction action)
{
    cancel();
    isWaiting_ = true;
    controls_.listen(action);
}

void MidiLearning::cancel()
{
    controls_.listen({});
    if (std::exchange(isWaiting_, false))
        emit ended();
}

void MidiLearning::forget(LearnedAction action)
{
    if (const auto control = getControl(action))
        controls_.set(*control, {});
    std::erase_if(bindings_, [&](const Binding& one) { return one.second == action; });
    save();
}

void MidiLearning::keep(MidiControl control)
{
    const LearnedAction action = controls_.get(control);
    if (const auto before = getControl(action); before && before != control)
        controls_.set(*before, {});
    std::erase_if(bindings_,
                  [&](const Binding& one) { return one.first == control || one.second == action; });
    bindings_.emplace_back(control, action);
    save();
    cancel();
}

void MidiLearning::save() const
{
    QStringList texts;
    for (const auto& [control, action] : bindings_)
        texts += written(control, action);
    setPreference(kLearnedKey, texts);
}

} // namespace velmora
