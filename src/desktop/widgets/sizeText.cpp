#include "desktop/widgets/sizeText.h"

#include "app/sizeString.h"
#include "desktop/widgets/messages.h"

#include <QLocale>

namespace velmora {

QString sizeText(std::uint64_t bytes)
{
    return translated(sizeString(bytes)).replace(".", QLocale().decimalPoint());
}

} // namespace velmora
