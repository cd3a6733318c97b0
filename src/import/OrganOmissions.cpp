#include "import/OrganOmissions.h"

#include <spdlog/fmt/fmt.h>

#include <algorithm>

namespace velmora {

namespace {

/// Returns pipe numbers as text, as in "pipes 1–12, 14".
std::string pipesText(std::vector<int> pipes)
{
    std::ranges::sort(pipes);
    std::string result = pipes.size() == 1 ? "pipe " : "pipes ";
    for (std::size_t i = 0; i < pipes.size();) {
        std::size_t last = i;
        while (last + 1 < pipes.size() && pipes[last + 1] <= pipes[last] + 1)
            ++last;
        result += fmt::format("{}{}", i == 0 ? "" : ", ", pipes[i]);
        if (pipes[last] > pipes[i])
            result += fmt::format("–{}", pipes[last]);
        i = last + 1;
    }
    return result;
}

} // namespace

void OrganOmissions::add(const OrganSection& section, const std::string& why,
                         const std::string& key)
{
    entry(section, why, section.lineOf(key));
}

void OrganOmissions::addPipe(const OrganSection& section, int pipe, const std::string& why)
{
    entry(section, why, section.lineOf(fmt::format("pipe{}", pipe))).pipes.push_back(pipe);
}

std::vector<std::pair<std::string, std::string>> OrganOmissions::list() const
{
    std::vector<std::pair<std::string, std::string>> result;
    for (const Entry& entry : entries_) {
        const std::string name = entry.section->text("name");
        std::string place = fmt::format("[{}]", entry.section->name());
        if (!name.empty())
            place += ' ' + name;
        if (!entry.pipes.empty())
            place += ", " + pipesText(entry.pipes);
        result.emplace_back(fmt::format("{}, line {}", place, entry.line), entry.why);
    }
    return result;
}

OrganOmissions::Entry& OrganOmissions::entry(const OrganSection& section, const std::string& why,
                                             std::size_t line)
{
    const auto [position, isNew] =
        positions_.try_emplace(std::pair(&section, why), entries_.size());
    if (isNew)
        entries_.push_back({&section, why, line, {}});
    return entries_[position->second];
}

} // namespace velmora
