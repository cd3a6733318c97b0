#include "desktop/widgets/motion.h"

#include "preferences/Preferences.h"

#include <QStyle>
#include <QWidget>

namespace velmora {

bool reducesMotion(const QWidget& widget)
{
    return getPrefBool("ReduceMotion") ||
           widget.style()->styleHint(QStyle::SH_Widget_Animation_Duration, nullptr, &widget) == 0;
}

} // namespace velmora
