#include "import/OrganDefinition.h"

#include "base/FormatError.h"
#include "base/Numbers.h"
#include "base/Text.h"
#include "import/xml.h"

#include <algorithm>
#include <array>
#include <map>

namespace velmora {

namespace {

constexpr auto kGeneral = "_General";
constexpr auto kPipes = "Pipe_SoundEngine01";
constexpr auto kLayers = "Pipe_SoundEngine01_Layer";
constexpr auto kAttacks = "Pipe_SoundEngine01_AttackSample";
constexpr auto kSamples = "Sample";
constexpr auto kRanks = "Rank";

int number(const std::string& text)
{
    return leadingInteger(text).value_or(0);
}

/// The object lists by type, in any letter case.
class Lists {
public:
    explicit Lists(const xml::Node& root)
    {
        for (const xml::Node list : root.children()) {
            if (list.name() == "ObjectList")
                // See docs/decisions.md, 57.
                lists_.insert_or_assign(lowerCase(list.attributes()["ObjectType"]),
                                        list.children());
        }
    }

    xml::Children optional(const std::string& type) const
    {
        const auto found = lists_.find(lowerCase(type));
        return found == lists_.end() ? xml::Children() : found->second;
    }

    xml::Children at(const std::string& type) const
    {
        if (!lists_.contains(lowerCase(type)))
            throw FormatError("has no object list of the type " + type);
        return optional(type);
    }

private:
    std::map<std::string, xml::Children> lists_;
};

/// A field to read: its full name, and its letter and default in compacted rows, which omit fields
/// that have their default.
struct Column {
    std::string_view name;
    std::string_view letter;
    std::string defaultValue;
};

/// The fields of the current object of a table.
template <std::size_t N> class Row {
public:
    explicit Row(std::array<Column, N> columns) : columns_(std::move(columns)) {}

    /// In rows with full names a missing field keeps the value of the previous row.
    void read(const xml::Node& object)
    {
        const bool compacted = isCompacted(object);
        // See docs/decisions.md, 56.
        for (std::size_t i = 0; compacted && i < N; ++i)
            values_[i] = columns_[i].defaultValue;
        for (const xml::Node field : object.children()) {
            const auto isField = [&](const Column& column) {
                return field.name() == column.name || (compacted && field.name() == column.letter);
            };
            const auto column = std::find_if(columns_.begin(), columns_.end(), isField);
            if (column != columns_.end())
                values_[static_cast<std::size_t>(column - columns_.begin())] = field.text();
        }
    }

    const std::string& text(std::size_t column) const { return values_[column]; }
    int number(std::size_t column) const { return velmora::number(values_[column]); }

private:
    static bool isCompacted(const xml::Node& object)
    {
        const xml::Children fields = object.children();
        if (fields.begin() == fields.end())
            return object.name() == "o";
        for (const xml::Node field : fields) {
            if (field.name().size() == 1)
                return true;
        }
        return false;
    }

    std::array<Column, N> columns_;
    std::array<std::string, N> values_;
};

void readGeneral(const Lists& lists, OrganDefinition& organ)
{
    const xml::Children objects = lists.at(kGeneral);
    if (objects.begin() == objects.end())
        return;
    for (const xml::Node field : (*objects.begin()).children()) {
        if (field.name() == "Identification_Name")
            organ.name = field.text();
        else if (field.name() == "Identification_UniqueOrganID")
            organ.number = number(field.text());
    }
}

/// Returns the pipe of each sample. Samples belong to layers, and layers to pipes.
std::unordered_map<int, int> readPipesOfSamples(const Lists& lists)
{
    std::unordered_map<int, int> pipeOfLayer;
    Row<2> layer({{{"LayerID", "a", ""}, {"PipeID", "b", ""}}});
    for (const xml::Node object : lists.at(kLayers)) {
        layer.read(object);
        pipeOfLayer[layer.number(0)] = layer.number(1);
    }

    std::unordered_map<int, int> result;
    Row<2> attack({{{"LayerID", "b", ""}, {"SampleID", "c", ""}}});
    for (const xml::Node object : lists.at(kAttacks)) {
        attack.read(object);
        const auto pipe = pipeOfLayer.find(attack.number(0));
        if (pipe != pipeOfLayer.end())
            result[attack.number(1)] = pipe->second;
    }
    return result;
}

void readSamples(const Lists& lists, OrganDefinition& organ)
{
    const auto pipeOfSample = readPipesOfSamples(lists);
    Row<4> sample({{{"SampleID", "a", ""},
                    {"InstallationPackageID", "b", ""},
                    {"SampleFilename", "c", ""},
                    {"LicenceSerialNumRequiredForSampleFile", "h", ""}}});
    for (const xml::Node object : lists.at(kSamples)) {
        sample.read(object);
        const auto pipe = pipeOfSample.find(sample.number(0));
        if (pipe != pipeOfSample.end())
            organ.files[pipe->second] = {sample.text(2), sample.number(1), sample.number(3) != 0};
    }
}

} // namespace

OrganDefinition readOrganDefinition(std::string bytes)
{
    const xml::Tree tree = xml::parseXML(xml::Buffer(std::move(bytes)));
    if (tree.root().name() != "Hauptwerk")
        throw FormatError("is not an organ definition: its root element is not \"Hauptwerk\"");

    const Lists lists(tree.root());
    OrganDefinition organ;
    readGeneral(lists, organ);
    readSamples(lists, organ);

    Row<3> pipe({{{"PipeID", "a", ""}, {"RankID", "b", ""}, {"NormalMIDINoteNumber", "d", "60"}}});
    for (const xml::Node object : lists.at(kPipes)) {
        pipe.read(object);
        organ.pipes.push_back({pipe.number(0), pipe.number(1), pipe.number(2)});
    }
    Row<2> rank({{{"RankID", "a", ""}, {"Name", "b", ""}}});
    for (const xml::Node object : lists.optional(kRanks)) {
        rank.read(object);
        organ.rankNames[rank.number(0)] = rank.text(1);
    }
    return organ;
}

} // namespace velmora
