#pragma once

#include "support/RiffBytes.h"
#include "support/Sine.h"

#include <QTemporaryDir>
#include <filesystem>
#include <fstream>
#include <regex>
#include <string>
#include <vector>

namespace velmora {

/// A temporary folder for an organ and its samples.
class OrganFolder {
public:
    std::filesystem::path path() const { return folder_.path().toStdString(); }

    /// Writes a file, creating its folders, and returns its path.
    std::filesystem::path write(const std::string& name, const std::string& bytes) const
    {
        auto file = path() / name;
        std::filesystem::create_directories(file.parent_path());
        std::ofstream(file, std::ios::binary) << bytes;
        return file;
    }

    /// Writes a mono WAV file with two seconds of a sine, sampled at 48,000 Hz.
    void writeSine(const std::string& name, double hertz) const
    {
        write(name, riff::file("WAVE", riff::wave(riff::points(sine(hertz, 2.0)), 48000)));
    }

private:
    QTemporaryDir folder_;
};

/// An object list of an XML organ definition. A row has the form "field=value,field=value".
struct ObjectList {
    std::string type;
    std::vector<std::string> rows;
};

inline std::string xmlOrganDefinition(const std::vector<ObjectList>& lists)
{
    std::string result = "<?xml version=\"1.0\"?>\r\n<Hauptwerk FileFormat=\"Organ\">\r\n";
    for (const auto& [type, rows] : lists) {
        result += "<ObjectList ObjectType=\"" + type + "\">\r\n";
        const std::regex field("([^=]+)=([^,]*),?");
        for (const std::string& row : rows)
            result += "<o>" + std::regex_replace(row, field, "<$1>$2</$1>") + "</o>\r\n";
        result += "</ObjectList>\r\n";
    }
    return result + "</Hauptwerk>";
}

} // namespace velmora
