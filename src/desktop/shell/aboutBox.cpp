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
           "<p>It sounds through FluidSynth, the Synthesis ToolKit and OpenAL Soft, reads samples "
           "with libsndfile and WavPack, hears MIDI through RtMidi and shows itself with Qt %2.</p>"
           "<p>Under the MIT licence.</p>")
            .arg(QCoreApplication::applicationVersion(), qVersion()));
}

} // namespace velmora
