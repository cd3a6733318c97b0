#include "desktop/widgets/deviceText.h"

#include <QCoreApplication>
#include <QRegularExpression>

namespace velmora {

QString deviceText(const std::string& name)
{
    static const QRegularExpression bridge("^(a2j|Midi-Bridge):");
    static const QRegularExpression hardware("^system:midi_(capture|playback)_(\\d+)$");
    static const QRegularExpression port(
        " ?(\\[\\d+\\]|\\d+:\\d+$|:? ?\\((capture|playback)[^)]*\\).*|:[^ ].*)");
    const QString raw = QString::fromStdString(name);
    if (const auto match = hardware.match(raw); match.hasMatch())
        return QCoreApplication::translate("deviceText", "MIDI port %1").arg(match.captured(2));
    QString text = QString(raw).remove(bridge);
    text.remove(port);
    return text.trimmed().isEmpty() ? raw : text.trimmed();
}

} // namespace velmora
