#include "desktop/widgets/sizeText.h"

#include "app/sizeString.h"

#include <QLocale>

namespace velmora {

QString sizeText(std::uint64_t bytes)
{
    return QString::fromStdString(sizeString(bytes)).replace(".", QLocale().decimalPoint());
}

} // namespace velmora
