#include "desktop/shell/aboutBox.h"

#include <QCoreApplication>
#include <QMessageBox>

namespace velmora {

namespace {

struct AboutBox {
    Q_DECLARE_TR_FUNCTIONS(velmora::AboutBox)
};

} // namespace

void showAbout(QWidget& parent)
{
    QMessageBox::about(
        &parent, AboutBox::tr("About Velmora"),
        AboutBox::tr("<h3>Velmora %1</h3>"
                     "<p>Plays keyboard instruments in historical and adaptive tunings.</p>"
                     "<p>Velmora uses FluidSynth, the Synthesis ToolKit and OpenAL Soft for sound, "
                     "libsndfile and WavPack for samples, RtMidi for MIDI, and Qt %2 for its "
                     "windows.</p>"
                     "<p>It is available under the MIT licence.</p>")
            .arg(QCoreApplication::applicationVersion(), qVersion()));
}

} // namespace velmora
