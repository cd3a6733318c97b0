#pragma once

#include "support/RiffBytes.h"
#include "support/Sine.h"

#include <filesystem>
#include <fstream>
#include <string>
#include <unistd.h>
#include <utility>
#include <vector>

/// A temporary folder for an organ and its samples, gone with the object.
class OrganFolder {
public:
    OrganFolder()
    {
        std::string name = (std::filesystem::temp_directory_path() / "organXXXXXX").string();
        path_ = mkdtemp(name.data());
    }
    ~OrganFolder() { std::filesystem::remove_all(path_); }
    OrganFolder(const OrganFolder&) = delete;
    OrganFolder& operator=(const OrganFolder&) = delete;

    const std::filesystem::path& path() const { return path_; }

    /// The path of a new file, in new folders where its name says so.
    std::filesystem::path write(const std::string& name, const std::string& bytes) const
    {
        auto path = path_ / name;
        std::filesystem::create_directories(path.parent_path());
        std::ofstream(path, std::ios::binary) << bytes;
        return path;
    }

    /// A mono WAV file of two seconds, at 48,000 Hz.
    void writeSine(const std::string& name, double hertz) const
    {
        write(name, riff::file("WAVE", riff::wave(riff::points(sine(hertz, 2.0)), 48000)));
    }

private:
    std::filesystem::path path_;
};

/// Builders of XML organ definitions.
namespace organ {

inline std::string row(const std::string& name,
                       const std::vector<std::pair<std::string, std::string>>& fields)
{
    std::string result = "<" + name + ">";
    for (const auto& [field, value] : fields)
        result.append("<").append(field).append(">").append(value).append("</").append(field) +=
            ">";
    return result + "</" + name + ">\r\n";
}

inline std::string list(const std::string& type, const std::string& rows)
{
    return "<ObjectList ObjectType=\"" + type + "\">\r\n" + rows + "</ObjectList>\r\n";
}

inline std::string file(const std::string& lists)
{
    return "<?xml version=\"1.0\"?>\r\n<Hauptwerk FileFormat=\"Organ\">\r\n" + lists +
           "</Hauptwerk>";
}

} // namespace organ
