#include "desktop/shell/bankNotice.h"

#include "preferences/Preferences.h"

#include <QCoreApplication>

namespace velmora {

namespace {

struct BankNotice {
    Q_DECLARE_TR_FUNCTIONS(velmora::Desktop)
};

} // namespace

QString bankNotice(const std::filesystem::path& bank)
{
    if (bank.empty())
        return BankNotice::tr("The General MIDI player is silent because there is no SoundFont for "
                              "it. Choose one in the preferences.");
    const std::string wanted = getPrefString("GMBank");
    if (wanted.empty() || bank == wanted)
        return {};
    return BankNotice::tr("%1 cannot be used as the General MIDI bank. %2 is used instead. Choose "
                          "another SoundFont in the preferences.")
        .arg(QString::fromStdString(wanted), QString::fromStdString(bank.string()));
}

} // namespace velmora
