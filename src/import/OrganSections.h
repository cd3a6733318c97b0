#pragma once

#include <cstddef>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace velmora {

/// A "[Name]" section of an organ definition with its "key=value" lines. Keys are found in any
/// letter case and with any number of zeros before a number: "Pipe001" and "PIPE1" are the same.
/// Look-ups take keys in lower case without such zeros ("pipe1").
class OrganSection {
public:
    OrganSection(std::string name, std::size_t line) : name_(std::move(name)), line_(line) {}

    /// The name as the file has it, without brackets.
    const std::string& name() const { return name_; }

    /// The line of its heading, counted from 1.
    std::size_t line() const { return line_; }

    /// Adds a line. If the key is there already, the new value replaces the old one.
    void add(std::string_view key, std::string_view value, std::size_t line);

    bool contains(const std::string& key) const { return lines_.contains(key); }

    /// Returns the value without blanks around it; empty without such a key.
    std::string text(const std::string& key) const;

    /// Returns the number at the beginning of the value, or `fallback`.
    int integer(const std::string& key, int fallback) const;
    double number(const std::string& key, double fallback) const;

    /// Returns whether the value is "Y" or another word for yes, or `fallback` without such a key.
    bool isTrue(const std::string& key, bool fallback) const;

    /// Returns the line of a key, or that of the heading without such a key.
    std::size_t lineOf(const std::string& key) const;

    /// Returns the numbers n of the keys "PREFIXn", in ascending order.
    std::vector<int> numbers(const std::string& prefix) const;

private:
    struct Line {
        std::string value;
        std::size_t line = 0;
    };

    std::string name_;
    std::size_t line_;
    std::map<std::string, Line> lines_;
};

/// The sections of an organ definition in text form, as the sets of today have it.
class OrganSections {
public:
    /// Parses a file in UTF-8 or Latin-1. Lines end with a line feed, a carriage return, or both;
    /// those that start with ';' are comments. A section that is repeated continues the earlier
    /// one. Throws FormatError if the file is in UTF-16.
    static OrganSections read(std::string_view bytes);

    /// Returns a section by its name in lower case and without zeros before its number ("stop1"),
    /// or null.
    const OrganSection* find(const std::string& name) const;

    /// Returns the numbers n of the sections "PREFIXn", in ascending order.
    std::vector<int> numbers(const std::string& prefix) const;

private:
    std::map<std::string, OrganSection> sections_;
};

} // namespace velmora
