#pragma once

#include "support/Bank.h"

#include <QTemporaryDir>

#include <filesystem>
#include <fstream>

namespace velmora {

/// A temporary home for the preferences and saved state of this process and its children. The
/// preferences select `kBank`, so that no test depends on which General MIDI banks are installed.
/// Must be created before any preference is read.
class TestHome {
public:
    TestHome()
    {
        for (const char* variable :
             {"XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_STATE_HOME", "XDG_CACHE_HOME"})
            qputenv(variable, folder_.path().toUtf8());
        const auto settings = std::filesystem::path(folder_.path().toStdString()) / "velmora";
        std::filesystem::create_directory(settings);
        std::ofstream(settings / "velmora.conf") << "[General]\nGMBank=" << kBank.string() << '\n';
    }

private:
    QTemporaryDir folder_;
};

} // namespace velmora
