#include "sequencer/PracticeHistory.h"

#include "base/File.h"
#include "base/FormatError.h"
#include "base/Text.h"
#include "platform/writeFile.h"
#include "preferences/settings.h"

#include <QCryptographicHash>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <utility>

namespace velmora {

namespace {

QJsonObject toJson(const PracticeEntry& entry)
{
    const PracticeSummary& summary = entry.summary;
    QJsonArray delays, bars;
    for (const int count : summary.delays)
        delays.append(count);
    for (const PracticeBar& bar : summary.bars)
        bars.append(QJsonObject{{"number", bar.number},
                                {"right", bar.right},
                                {"wrong", bar.wrong},
                                {"missed", bar.missed}});
    return {{"time", entry.time.toUTC().toString(Qt::ISODate)},
            {"right", summary.right},
            {"wrong", summary.wrong},
            {"missed", summary.missed},
            {"early", summary.early},
            {"late", summary.late},
            {"passes", summary.passes},
            {"cleanPasses", summary.cleanPasses},
            {"speed", summary.speed},
            {"medianDelay", summary.medianDelay},
            {"delays", delays},
            {"bars", bars}};
}

PracticeEntry practiceEntryOf(const QJsonObject& json)
{
    PracticeSummary summary{.right = json["right"].toInt(),
                            .wrong = json["wrong"].toInt(),
                            .missed = json["missed"].toInt(),
                            .early = json["early"].toInt(),
                            .late = json["late"].toInt(),
                            .passes = json["passes"].toInt(),
                            .cleanPasses = json["cleanPasses"].toInt(),
                            .speed = json["speed"].toDouble(),
                            .medianDelay = json["medianDelay"].toDouble()};
    const QJsonArray delays = json["delays"].toArray();
    for (std::size_t i = 0; i < summary.delays.size(); ++i)
        summary.delays[i] = delays.at(static_cast<qsizetype>(i)).toInt();
    for (const QJsonValue bar : json["bars"].toArray())
        summary.bars.push_back({bar["number"].toInt(), bar["right"].toInt(), bar["wrong"].toInt(),
                                bar["missed"].toInt()});
    return {QDateTime::fromString(json["time"].toString(), Qt::ISODate), std::move(summary)};
}

} // namespace

std::filesystem::path practiceFolder()
{
    return settingsFolder() / "practice";
}

PracticeHistory::PracticeHistory(const std::filesystem::path& folder,
                                 const std::filesystem::path& piece)
    : piece_(std::filesystem::absolute(piece).lexically_normal())
{
    const std::string& name = piece_.native();
    const QByteArray hash = QCryptographicHash::hash(
        QByteArray(name.data(), static_cast<qsizetype>(name.size())), QCryptographicHash::Sha1);
    file_ = folder / (hash.toHex().toStdString() + ".json");
    std::string text;
    try {
        text = readTextFile(file_);
    } catch (const FormatError&) {
        return; // it was not practised before
    }
    const auto json = QJsonDocument::fromJson(QByteArray::fromStdString(text)).object();
    for (const QJsonValue value : json["sessions"].toArray()) {
        PracticeEntry entry = practiceEntryOf(value.toObject());
        if (entry.time.isValid())
            entries_.push_back(std::move(entry));
    }
    if (const QJsonObject choice = json["choice"].toObject(); !choice.isEmpty())
        choice_ = {static_cast<unsigned>(choice["voices"].toInt()), choice["firstBar"].toInt(),
                   choice["lastBar"].toInt()};
}

void PracticeHistory::add(PracticeEntry entry)
{
    entries_.push_back(std::move(entry));
    if (entries_.size() > kMaxEntries)
        entries_.erase(entries_.begin());
    write();
}

void PracticeHistory::choose(const PracticeChoice& choice)
{
    choice_ = choice;
    write();
}

void PracticeHistory::write() const
{
    QJsonArray sessions;
    for (const PracticeEntry& kept : entries_)
        sessions.append(toJson(kept));
    QJsonObject json{{"piece", QString::fromStdString(toUtf8(piece_.string()))},
                     {"sessions", sessions}};
    if (choice_)
        json["choice"] = QJsonObject{{"voices", static_cast<int>(choice_->voices.to_ulong())},
                                     {"firstBar", choice_->firstBar},
                                     {"lastBar", choice_->lastBar}};
    std::filesystem::create_directories(file_.parent_path());
    writeFile(file_, QJsonDocument(json).toJson().toStdString());
}

} // namespace velmora
