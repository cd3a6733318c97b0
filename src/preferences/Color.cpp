#include "preferences/Color.h"

#include "preferences/settings.h"

#include <algorithm>

namespace velmora {

namespace {

bool isComponent(float value)
{
    return value >= 0 && value <= 1;
}

} // namespace

Color::Color(const QColor& color)
{
    color.getRgbF(&red, &green, &blue, &alpha);
}

Color::Color(const char* key)
{
    const QVariantList list = preference(key).toList();
    float values[4] = {};
    if (list.size() != std::ssize(values))
        return;
    std::transform(list.begin(), list.end(), values, [](const QVariant& value) {
        bool isNumber = false;
        const float number = value.toFloat(&isNumber);
        return isNumber ? number : -1.0F;
    });
    if (!std::all_of(std::begin(values), std::end(values), isComponent))
        return;
    red = values[0];
    green = values[1];
    blue = values[2];
    alpha = values[3];
}

void setPrefColor(const std::string& key, const Color& color)
{
    setPreference(key, QVariantList{color.red, color.green, color.blue, color.alpha});
}

} // namespace velmora
