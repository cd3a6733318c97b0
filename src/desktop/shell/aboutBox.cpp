#include "desktop/shell/aboutBox.h"

#include <QCoreApplication>
#include <QMessageBox>

namespace velmora {

void showAbout(QWidget& parent)
{
    const auto tr = [](const char* text) { return QCoreApplication::translate("about", text); };
    QMessageBox::about(
        &parent, tr("About Velmora"),
        tr("<h3>Velmora %1</h3>"
           "<p>Plays keyboard instruments in historical and adaptive tunings.</p>"
           "<p>Velmora uses FluidSynth, the Synthesis ToolKit and OpenAL Soft for sound, "
           "libsndfile and WavPack for samples, RtMidi for MIDI, and Qt %2 for its "
           "windows.</p>"
           "<p>It is available under the MIT licence.</p>")
            .arg(QCoreApplication::applicationVersion(), qVersion()));
}

} // namespace velmora
